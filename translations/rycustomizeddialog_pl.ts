<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
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
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>Profil:</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Zapisz jako…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importuj…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Eksportuj…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>Przełączyć na profil „%1”?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>Zmiany w tym oknie zostaną utracone.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>Nie można użyć tego układu.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Zapisywanie profilu</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>Zastąpić profil „%1”?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>Usunąć profil „%1”?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>Importowanie układu</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>Eksportowanie układu</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Układy</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>Ten program nie ma: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>Zaimportować ten układ?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Nie można zapisać pliku.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Nazwa profilu:</translation>
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
    <message>
        <source>Undo Toolbar Change</source>
        <translation>Cofnij zmianę pasków narzędzi</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>Ponów zmianę pasków narzędzi</translation>
    </message>
</context>
</TS>
