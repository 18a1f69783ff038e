<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
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
</TS>
