<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>Показ</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Дії</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Панелі інструментів</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Додати нову панель інструментів</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Створити</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Видалити вибрану панель інструментів</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Перейменувати панель інструментів</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Перейменувати</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Дії на поточній панелі інструментів</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Пересунути дію вгору</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вгору</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Прибрати дію з панелі інструментів</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Додати дію на панель інструментів</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Пересунути дію вниз</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>Показ</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Дії</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Панелі інструментів</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Додати нову панель інструментів</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Створити</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Видалити вибрану панель інструментів</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Перейменувати панель інструментів</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Перейменувати</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Дії на поточній панелі інструментів</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Пересунути дію вгору</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вгору</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Прибрати дію з панелі інструментів</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Додати дію на панель інструментів</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Пересунути дію вниз</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
</context>
<context>
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>Прибрано: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Додано: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>Пересунуто: %1, %2 з %3</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Параметри</translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 додає поточну дію на панель інструментів</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 створює панель інструментів, %2 перейменовує її, %3 видаляє її</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 і %2 пересувають поточну дію, %3 прибирає її</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>Стрічка</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>Панель інструментів</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; Р О З Д І Л Ь Н И К &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>Користувацька панель інструментів</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>Довідка</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>Довідковий документ KORVA!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>Налаштувати панелі інструментів…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Інше</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>Якщо її прибрати, вона повернеться під час наступного запуску.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Проміжок</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>Панель інструментів %1</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>Роздільник</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>Належить до програми, її не можна ні перейменувати, ні видалити</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>Назва панелі інструментів</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>Українська</translation>
    </message>
</context>
</TS>
