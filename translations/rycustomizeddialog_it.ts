<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
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
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
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
