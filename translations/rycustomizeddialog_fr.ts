<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>Profil :</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>Passer au profil « %1 » ?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>Vos modifications dans cette boîte de dialogue seront perdues.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>La disposition n&apos;est pas utilisable.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Enregistrer le profil</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>Remplacer le profil « %1 » ?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>Supprimer le profil « %1 » ?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>Importer une disposition</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>Exporter la disposition</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Dispositions</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>Ce programme n&apos;a pas : %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>Importer cette disposition ?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Impossible d&apos;écrire le fichier.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Nom du profil :</translation>
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
    <message>
        <source>Undo Toolbar Change</source>
        <translation>Annuler la modification des barres d&apos;outils</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>Rétablir la modification des barres d&apos;outils</translation>
    </message>
</context>
</TS>
