<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>Przeciągnij działania w wybrane miejsce paska narzędzi lub na inny pasek narzędzi.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>Przeciągnij działania, aby je przenieść, także na inny pasek narzędzi. Przeciągnij je z powrotem do wszystkich działań, aby je usunąć.</translation>
    </message>
</context>
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
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>Usunięto: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Dodano: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>Przeniesiono: %1, %2 z %3</translation>
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
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 wycina zaznaczone działania. %2 wstawia je za bieżącym, także na innym pasku narzędzi.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 dodaje wycięte działania.</translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 dodaje bieżące działanie do paska narzędzi</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 tworzy pasek narzędzi, %2 zmienia jego nazwę, %3 go usuwa</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 i %2 przenoszą bieżące działanie, %3 je usuwa</translation>
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
    <message>
        <source>Unlock the toolbars</source>
        <translation>Odblokować paski narzędzi</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1: przywrócić rozmiar ikon i położenie tekstu</translation>
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
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>Separator</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>Należy do programu; nie można zmienić jego nazwy ani go usunąć</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>Nazwa paska narzędzi</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>Paski narzędzi</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>Rozmiar ikon</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Położenie tekstu</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>Zablokuj paski narzędzi</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>Przywróć pierwotny stan tego paska narzędzi</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>Zgodnie z programem</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>Małe (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>Średnie (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>Duże (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>Bardzo duże (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>Tylko ikony</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Tylko tekst</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>Tekst obok ikon</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>Tekst pod ikonami</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>Usuń z paska narzędzi</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>Polski</translation>
    </message>
</context>
</TS>
