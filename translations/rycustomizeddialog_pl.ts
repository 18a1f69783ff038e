<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>Znajdź działanie</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>Klawisz powrotu dodaje działanie do paska narzędzi</translation>
    </message>
</context>
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>Wyświetlanie</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Działania</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Paski narzędzi</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Dodaj nowy pasek narzędzi</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nowy</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Usuń zaznaczony pasek narzędzi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Zmień nazwę paska narzędzi</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Działania na bieżącym pasku narzędzi</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Przenieś działanie w górę</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Usuń działanie z paska narzędzi</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Dodaj działanie do paska narzędzi</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Przenieś działanie w dół</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>W dół</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>Wyświetlanie</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Działania</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Paski narzędzi</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Dodaj nowy pasek narzędzi</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nowy</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Usuń zaznaczony pasek narzędzi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Zmień nazwę paska narzędzi</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Zmień nazwę</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Działania na bieżącym pasku narzędzi</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Przenieś działanie w górę</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Usuń działanie z paska narzędzi</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Dodaj działanie do paska narzędzi</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Przenieś działanie w dół</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>W dół</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
</context>
<context>
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>Zastosować zmiany w paskach narzędzi?</translation>
    </message>
</context>
<context>
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>Ten pasek narzędzi jest pusty. Kliknij działanie dwukrotnie, aby je dodać.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>Dostosuj paski narzędzi</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>Wszystkie paski narzędzi są takie, jak utworzył je program.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>Przywrócić domyślne paski narzędzi?</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1: usunąć pasek narzędzi</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1: dodać %2</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1: usunąć %2</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1: przywrócić kolejność</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>Wstążka</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>Pasek narzędzi</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; S E P A R A T O R &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>Własny pasek narzędzi</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>Dokument pomocy KORVA!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>Dostosuj paski narzędzi…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Inne</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>Jeśli je usuniesz, wróci przy następnym uruchomieniu.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Odstęp</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>Pasek narzędzi %1</translation>
    </message>
</context>
</TS>
