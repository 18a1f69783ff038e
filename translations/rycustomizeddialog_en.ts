<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Down</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unlock the toolbars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo Toolbar Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
