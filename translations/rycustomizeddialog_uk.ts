<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>Перетягніть дії в потрібне місце панелі інструментів або на іншу панель.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>Перетягуйте дії, щоб пересунути їх, також на іншу панель інструментів. Перетягніть їх назад до списку всіх дій, щоб прибрати.</translation>
    </message>
</context>
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>Знайти дію</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>Клавіша введення додає дію на панель інструментів</translation>
    </message>
</context>
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
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 вирізає вибрані дії. %2 вставляє їх після поточної, також на іншій панелі інструментів.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 додає вирізані дії.</translation>
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
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>Застосувати зміни панелей інструментів?</translation>
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
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>Ця панель інструментів порожня. Двічі клацніть дію, щоб додати її.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>Налаштувати панелі інструментів</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>Усі панелі інструментів такі, якими їх створила програма.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>Повернути панелі інструментів до початкового вигляду?</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1: видалити панель інструментів</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1: додати %2</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1: прибрати %2</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1: повернути порядок</translation>
    </message>
    <message>
        <source>Unlock the toolbars</source>
        <translation>Відкріпити панелі інструментів</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1: повернути розмір значків і розташування тексту</translation>
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
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>Панелі інструментів</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>Розмір значків</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Розташування тексту</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>Закріпити панелі інструментів</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>Скинути цю панель інструментів</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>Як задано програмою</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>Малі (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>Середні (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>Великі (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>Дуже великі (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>Лише значки</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Лише текст</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>Текст поруч зі значками</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>Текст під значками</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>Прибрати з панелі інструментів</translation>
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
