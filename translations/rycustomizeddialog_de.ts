<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>Ziehen Sie Aktionen an eine Stelle der Werkzeugleiste oder auf eine andere Werkzeugleiste.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>Ziehen Sie Aktionen, um sie zu verschieben, auch auf eine andere Werkzeugleiste. Ziehen Sie sie zurück zu allen Aktionen, um sie zu entfernen.</translation>
    </message>
</context>
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>Aktion suchen</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>Die Eingabetaste fügt die Aktion zur Werkzeugleiste hinzu</translation>
    </message>
</context>
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
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>Entfernt: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Hinzugefügt: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>Verschoben: %1, %2 von %3</translation>
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
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 schneidet die ausgewählten Aktionen aus. %2 fügt sie nach der aktuellen ein, auch in einer anderen Werkzeugleiste.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 fügt die ausgeschnittenen Aktionen hinzu.</translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 fügt die aktuelle Aktion zur Werkzeugleiste hinzu</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 erstellt eine Werkzeugleiste, %2 benennt sie um, %3 entfernt sie</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 und %2 verschieben die aktuelle Aktion, %3 entfernt sie</translation>
    </message>
</context>
<context>
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>Änderungen an den Werkzeugleisten anwenden?</translation>
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
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>Diese Werkzeugleiste ist leer. Doppelklicken Sie auf eine Aktion, um sie hinzuzufügen.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>Werkzeugleisten anpassen</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>Alle Werkzeugleisten sind so, wie die Anwendung sie angelegt hat.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>Standardwerte der Werkzeugleisten wiederherstellen?</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1: Werkzeugleiste löschen</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1: %2 hinzufügen</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1: %2 entfernen</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1: Reihenfolge wiederherstellen</translation>
    </message>
    <message>
        <source>Unlock the toolbars</source>
        <translation>Werkzeugleisten entsperren</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1: Symbolgröße und Textposition wiederherstellen</translation>
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
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>Gehört zum Programm und kann weder umbenannt noch entfernt werden</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>Name der Werkzeugleiste</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>Werkzeugleisten</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>Symbolgröße</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Textposition</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>Werkzeugleisten sperren</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>Diese Werkzeugleiste zurücksetzen</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>Wie vom Programm vorgegeben</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>Klein (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>Mittel (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>Groß (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>Sehr groß (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>Nur Symbole</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Nur Text</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>Text neben Symbolen</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>Text unter Symbolen</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>Aus der Werkzeugleiste entfernen</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>Deutsch</translation>
    </message>
</context>
</TS>
