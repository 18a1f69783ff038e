<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
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
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Параметри</translation>
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
</TS>
