<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>Найти действие</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>Клавиша ввода добавляет действие на панель инструментов</translation>
    </message>
</context>
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>Отображение</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Действия</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Панели инструментов</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Добавить новую панель инструментов</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Удалить выбранную панель инструментов</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Переименовать панель инструментов</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Действия на текущей панели инструментов</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Переместить действие вверх</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Убрать действие с панели инструментов</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Добавить действие на панель инструментов</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Переместить действие вниз</translation>
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
        <translation>Отображение</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Действия</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Панели инструментов</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Добавить новую панель инструментов</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Удалить выбранную панель инструментов</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Переименовать панель инструментов</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Действия на текущей панели инструментов</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Переместить действие вверх</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Убрать действие с панели инструментов</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Добавить действие на панель инструментов</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Переместить действие вниз</translation>
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
        <translation>Параметры</translation>
    </message>
</context>
<context>
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>Применить изменения панелей инструментов?</translation>
    </message>
</context>
<context>
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>Эта панель инструментов пуста. Дважды щёлкните действие, чтобы добавить его.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>Настроить панели инструментов</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>Все панели инструментов такие, какими их создало приложение.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>Вернуть панели инструментов к исходному виду?</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1: удалить панель инструментов</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1: добавить %2</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1: убрать %2</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1: вернуть порядок</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>Лента</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>Панель инструментов</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; Р А З Д Е Л И Т Е Л Ь &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>Пользовательская панель инструментов</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>Справочный документ KORVA!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>Настроить панели инструментов…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Прочее</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>Если его убрать, оно вернётся при следующем запуске.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Промежуток</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>Панель инструментов %1</translation>
    </message>
</context>
</TS>
