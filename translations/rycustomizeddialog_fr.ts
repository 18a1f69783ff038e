<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>Faites glisser des actions à un endroit de la barre d&apos;outils, ou sur une autre barre d&apos;outils.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>Faites glisser des actions pour les déplacer, y compris sur une autre barre d&apos;outils. Faites-les glisser vers toutes les actions pour les retirer.</translation>
    </message>
</context>
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
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>Retiré&#xa0;: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Ajouté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>Déplacé&#xa0;: %1, %2 sur %3</translation>
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
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 coupe les actions sélectionnées. %2 les insère après l&apos;action actuelle, y compris dans une autre barre d&apos;outils.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 ajoute les actions coupées.</translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 ajoute l&apos;action actuelle à la barre d&apos;outils</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 crée une barre d&apos;outils, %2 la renomme, %3 la retire</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 et %2 déplacent l&apos;action actuelle, %3 la retire</translation>
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
    <message>
        <source>Unlock the toolbars</source>
        <translation>Déverrouiller les barres d&apos;outils</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1 : rétablir la taille des icônes et la position du texte</translation>
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
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>Fait partie du programme et ne peut être ni renommée ni retirée</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>Nom de la barre d&apos;outils</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>Barres d&apos;outils</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>Taille des icônes</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Position du texte</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>Verrouiller les barres d&apos;outils</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>Réinitialiser cette barre d&apos;outils</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>Selon le programme</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>Petite (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>Moyenne (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>Grande (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>Très grande (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>Icônes seules</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Texte seul</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>Texte à côté des icônes</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>Texte sous les icônes</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>Retirer de la barre d&apos;outils</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>Français</translation>
    </message>
</context>
</TS>
