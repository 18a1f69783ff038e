<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>Trascina le azioni in un punto della barra degli strumenti o su un&apos;altra barra degli strumenti.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>Trascina le azioni per spostarle, anche su un&apos;altra barra degli strumenti. Trascinale di nuovo su tutte le azioni per rimuoverle.</translation>
    </message>
</context>
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>Cerca un&apos;azione</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>Il tasto Invio aggiunge l&apos;azione alla barra degli strumenti</translation>
    </message>
</context>
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
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>Rimosso: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Aggiunto: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>Spostato: %1, %2 di %3</translation>
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
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 taglia le azioni selezionate. %2 le inserisce dopo quella attuale, anche in un&apos;altra barra degli strumenti.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 aggiunge le azioni tagliate.</translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 aggiunge l&apos;azione attuale alla barra degli strumenti</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 crea una barra degli strumenti, %2 la rinomina, %3 la rimuove</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 e %2 spostano l&apos;azione attuale, %3 la rimuove</translation>
    </message>
</context>
<context>
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>Applicare le modifiche alle barre degli strumenti?</translation>
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
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>Questa barra degli strumenti è vuota. Fai doppio clic su un&apos;azione per aggiungerla.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>Personalizza le barre degli strumenti</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>Tutte le barre degli strumenti sono come le ha create l&apos;applicazione.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>Ripristinare le barre degli strumenti predefinite?</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1: eliminare la barra degli strumenti</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1: aggiungere %2</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1: rimuovere %2</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1: ripristinare l&apos;ordine</translation>
    </message>
    <message>
        <source>Unlock the toolbars</source>
        <translation>Sbloccare le barre degli strumenti</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1: ripristinare la dimensione delle icone e la posizione del testo</translation>
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
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>Separatore</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>Fa parte del programma e non può essere né rinominata né rimossa</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>Nome della barra degli strumenti</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>Barre degli strumenti</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>Dimensione delle icone</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Posizione del testo</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>Blocca le barre degli strumenti</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>Ripristina questa barra degli strumenti</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>Come previsto dal programma</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>Piccole (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>Medie (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>Grandi (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>Molto grandi (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>Solo icone</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Solo testo</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>Testo accanto alle icone</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>Testo sotto le icone</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>Rimuovi dalla barra degli strumenti</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>Italiano</translation>
    </message>
</context>
</TS>
