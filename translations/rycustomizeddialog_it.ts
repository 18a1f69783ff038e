<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>Visualizzazione</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Azioni</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barre degli strumenti</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Aggiungi una nuova barra degli strumenti</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuova</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Rimuovi la barra degli strumenti selezionata</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Rinomina la barra degli strumenti</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Azioni della barra degli strumenti attuale</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Sposta l&apos;azione in alto</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Rimuovi l&apos;azione dalla barra degli strumenti</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Aggiungi l&apos;azione alla barra degli strumenti</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Sposta l&apos;azione in basso</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>Visualizzazione</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Azioni</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barre degli strumenti</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Aggiungi una nuova barra degli strumenti</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuova</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Rimuovi la barra degli strumenti selezionata</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Rinomina la barra degli strumenti</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rinomina</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Azioni della barra degli strumenti attuale</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Sposta l&apos;azione in alto</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Rimuovi l&apos;azione dalla barra degli strumenti</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Aggiungi l&apos;azione alla barra degli strumenti</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Sposta l&apos;azione in basso</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
</context>
<context>
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>Profilo:</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Salva con nome…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importa…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>Passare al profilo “%1”?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>Le modifiche fatte in questa finestra andranno perse.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>La disposizione non è utilizzabile.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Salva il profilo</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>Sostituire il profilo “%1”?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>Rimuovere il profilo “%1”?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>Importa una disposizione</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>Esporta la disposizione</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Disposizioni</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>Questo programma non ha: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>Importare questa disposizione?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Impossibile scrivere il file.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Nome del profilo:</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>Barra multifunzione</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>Barra degli strumenti</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; S E P A R A T O R E &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>Barra degli strumenti personalizzata</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>Documento d&apos;aiuto di KORVA!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>Personalizza le barre degli strumenti…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>Se la rimuovi, tornerà al prossimo avvio.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>Barra degli strumenti %1</translation>
    </message>
    <message>
        <source>Undo Toolbar Change</source>
        <translation>Annulla la modifica alle barre degli strumenti</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>Ripeti la modifica alle barre degli strumenti</translation>
    </message>
</context>
</TS>
