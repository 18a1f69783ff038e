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
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>Français</translation>
    </message>
</context>
</TS>
