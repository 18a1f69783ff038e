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
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Параметри</translation>
    </message>
</context>
<context>
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>Профіль:</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Зберегти як…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Видалити</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Імпорт…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Експорт…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>Перейти на профіль «%1»?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>Ваші зміни в цьому вікні буде втрачено.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>Це розташування не можна використати.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Збереження профілю</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>Замінити профіль «%1»?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>Видалити профіль «%1»?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>Імпорт розташування</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>Експорт розташування</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Розташування</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>У цій програмі немає: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>Імпортувати це розташування?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Не вдається записати файл.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Назва профілю:</translation>
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
    <message>
        <source>Undo Toolbar Change</source>
        <translation>Скасувати зміну панелей інструментів</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>Повторити зміну панелей інструментів</translation>
    </message>
</context>
</TS>
