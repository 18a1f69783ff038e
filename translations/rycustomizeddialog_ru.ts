<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>Перетащите действия в нужное место панели инструментов или на другую панель.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>Перетаскивайте действия, чтобы переместить их, в том числе на другую панель инструментов. Перетащите их обратно к списку всех действий, чтобы убрать.</translation>
    </message>
</context>
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
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>Убрано: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Добавлено: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>Перемещено: %1, %2 из %3</translation>
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
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 вырезает выбранные действия. %2 вставляет их после текущего, в том числе на другой панели инструментов.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 добавляет вырезанные действия.</translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 добавляет текущее действие на панель инструментов</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 создаёт панель инструментов, %2 переименовывает её, %3 удаляет её</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 и %2 перемещают текущее действие, %3 убирает его</translation>
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
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>Профиль:</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Сохранить как…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Импорт…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>Перейти на профиль «%1»?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>Ваши изменения в этом окне будут потеряны.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>Это расположение использовать нельзя.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Сохранение профиля</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>Заменить профиль «%1»?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>Удалить профиль «%1»?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>Импорт расположения</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>Экспорт расположения</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Расположения</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>В этой программе нет: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>Импортировать это расположение?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Не удаётся записать файл.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Имя профиля:</translation>
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
    <message>
        <source>Unlock the toolbars</source>
        <translation>Открепить панели инструментов</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1: вернуть размер значков и положение текста</translation>
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
    <message>
        <source>Undo Toolbar Change</source>
        <translation>Отменить изменение панелей инструментов</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>Повторить изменение панелей инструментов</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>Разделитель</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>Входит в программу, её нельзя ни переименовать, ни удалить</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>Название панели инструментов</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>Панели инструментов</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>Размер значков</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Положение текста</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>Закрепить панели инструментов</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>Сбросить эту панель инструментов</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>Как задано программой</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>Маленькие (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>Средние (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>Большие (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>Очень большие (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>Только значки</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Только текст</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>Текст рядом со значками</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>Текст под значками</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>Убрать с панели инструментов</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>Русский</translation>
    </message>
</context>
</TS>
