<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>Chercher une action</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>La touche Entrée ajoute l&apos;action à la barre d&apos;outils</translation>
    </message>
</context>
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barres d&apos;outils</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Ajouter une nouvelle barre d&apos;outils</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouvelle</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Supprimer la barre d&apos;outils sélectionnée</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Renommer la barre d&apos;outils</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Actions de la barre d&apos;outils actuelle</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Déplacer l&apos;action vers le haut</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Retirer l&apos;action de la barre d&apos;outils</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Ajouter l&apos;action à la barre d&apos;outils</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Déplacer l&apos;action vers le bas</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Descendre</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barres d&apos;outils</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Ajouter une nouvelle barre d&apos;outils</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouvelle</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Supprimer la barre d&apos;outils sélectionnée</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Renommer la barre d&apos;outils</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Actions de la barre d&apos;outils actuelle</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Déplacer l&apos;action vers le haut</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Retirer l&apos;action de la barre d&apos;outils</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Ajouter l&apos;action à la barre d&apos;outils</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Déplacer l&apos;action vers le bas</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Descendre</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
</context>
<context>
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>Appliquer vos modifications aux barres d&apos;outils ?</translation>
    </message>
</context>
<context>
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>Cette barre d&apos;outils est vide. Double-cliquez sur une action pour l&apos;ajouter.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>Personnaliser les barres d&apos;outils</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>Toutes les barres d&apos;outils sont telles que l&apos;application les a créées.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>Rétablir les barres d&apos;outils par défaut ?</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1 : supprimer la barre d&apos;outils</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1 : ajouter %2</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1 : retirer %2</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1 : rétablir l&apos;ordre</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>Ruban</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>Barre d&apos;outils</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; S É P A R A T E U R &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>Barre d&apos;outils personnalisée</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>Document d&apos;aide de KORVA&#xa0;!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>Personnaliser les barres d&apos;outils…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>Si vous la retirez, elle reviendra au prochain démarrage.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>Barre d&apos;outils %1</translation>
    </message>
</context>
</TS>
