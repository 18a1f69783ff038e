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
</context>
</TS>
