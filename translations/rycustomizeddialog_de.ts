<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Werkzeugleisten</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Neue Werkzeugleiste hinzufügen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Ausgewählte Werkzeugleiste entfernen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Werkzeugleiste umbenennen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Aktionen der aktuellen Werkzeugleiste</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Aktion nach oben verschieben</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Aktion aus der Werkzeugleiste entfernen</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Aktion zur Werkzeugleiste hinzufügen</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Aktion nach unten verschieben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Werkzeugleisten</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Neue Werkzeugleiste hinzufügen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Ausgewählte Werkzeugleiste entfernen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Werkzeugleiste umbenennen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Aktionen der aktuellen Werkzeugleiste</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Aktion nach oben verschieben</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Aktion aus der Werkzeugleiste entfernen</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Aktion zur Werkzeugleiste hinzufügen</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Aktion nach unten verschieben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
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
        <translation>Speichern unter…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>Zum Profil „%1“ wechseln?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>Ihre Änderungen in diesem Dialog gehen verloren.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>Die Anordnung ist nicht verwendbar.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Profil speichern</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>Profil „%1“ ersetzen?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>Profil „%1“ entfernen?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>Anordnung importieren</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>Anordnung exportieren</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Anordnungen</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>Dieses Programm hat nicht: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>Diese Anordnung importieren?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Die Datei kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Name des Profils:</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>Menüband</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>Werkzeugleiste</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; T R E N N L I N I E &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>Eigene Werkzeugleiste</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>KORVA-Hilfedokument!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>Werkzeugleisten anpassen…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>Wenn Sie sie entfernen, ist sie beim nächsten Start wieder da.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>Werkzeugleiste %1</translation>
    </message>
    <message>
        <source>Undo Toolbar Change</source>
        <translation>Änderung der Werkzeugleisten rückgängig machen</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>Änderung der Werkzeugleisten wiederholen</translation>
    </message>
</context>
</TS>
