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
