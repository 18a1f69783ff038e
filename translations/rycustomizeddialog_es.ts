<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>Arrastre acciones a un lugar de la barra de herramientas o a otra barra de herramientas.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>Arrastre acciones para moverlas, también a otra barra de herramientas. Arrástrelas de vuelta a todas las acciones para quitarlas.</translation>
    </message>
</context>
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>Buscar una acción</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>La tecla Intro añade la acción a la barra de herramientas</translation>
    </message>
</context>
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Acciones</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barras de herramientas</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Añadir una barra de herramientas nueva</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Eliminar la barra de herramientas seleccionada</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Cambiar el nombre de la barra de herramientas</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Acciones de la barra de herramientas actual</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Mover la acción hacia arriba</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Quitar la acción de la barra de herramientas</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Añadir la acción a la barra de herramientas</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Mover la acción hacia abajo</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bajar</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Acciones</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barras de herramientas</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Añadir una barra de herramientas nueva</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Eliminar la barra de herramientas seleccionada</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Cambiar el nombre de la barra de herramientas</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Acciones de la barra de herramientas actual</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Mover la acción hacia arriba</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Quitar la acción de la barra de herramientas</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Añadir la acción a la barra de herramientas</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Mover la acción hacia abajo</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bajar</translation>
    </message>
</context>
<context>
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>Quitado: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Añadido: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>Movido: %1, %2 de %3</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
</context>
<context>
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 corta las acciones seleccionadas. %2 las inserta después de la actual, también en otra barra de herramientas.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 añade las acciones cortadas.</translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 añade la acción actual a la barra de herramientas</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 crea una barra de herramientas, %2 le cambia el nombre, %3 la quita</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 y %2 mueven la acción actual, %3 la quita</translation>
    </message>
</context>
<context>
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>¿Aplicar los cambios a las barras de herramientas?</translation>
    </message>
</context>
<context>
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>Perfil:</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importar…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>¿Cambiar al perfil «%1»?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>Se perderán los cambios hechos en este diálogo.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>No se puede usar la disposición.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Guardar el perfil</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>¿Reemplazar el perfil «%1»?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>¿Eliminar el perfil «%1»?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>Importar una disposición</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>Exportar la disposición</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Disposiciones</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>Este programa no tiene: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>¿Importar esta disposición?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>No se puede escribir el archivo.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Nombre del perfil:</translation>
    </message>
</context>
<context>
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>Esta barra de herramientas está vacía. Haga doble clic en una acción para añadirla.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>Personalizar las barras de herramientas</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>Todas las barras de herramientas están como las creó la aplicación.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>¿Restaurar las barras de herramientas predeterminadas?</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1: eliminar la barra de herramientas</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1: añadir %2</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1: quitar %2</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1: restaurar el orden</translation>
    </message>
    <message>
        <source>Unlock the toolbars</source>
        <translation>Desbloquear las barras de herramientas</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1: restaurar el tamaño de los iconos y la posición del texto</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>Cinta de opciones</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>Barra de herramientas</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; S E P A R A D O R &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>Barra de herramientas personalizada</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>¡Documento de ayuda de KORVA!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>Personalizar las barras de herramientas…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>Si la quita, volverá a aparecer en el próximo inicio.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>Barra de herramientas %1</translation>
    </message>
    <message>
        <source>Undo Toolbar Change</source>
        <translation>Deshacer el cambio en las barras de herramientas</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>Rehacer el cambio en las barras de herramientas</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>Separador</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>Viene con el programa y no se puede cambiar de nombre ni quitar</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>Nombre de la barra de herramientas</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>Barras de herramientas</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>Tamaño de los iconos</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Posición del texto</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>Bloquear las barras de herramientas</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>Restablecer esta barra de herramientas</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>Como lo tiene el programa</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>Pequeños (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>Medianos (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>Grandes (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>Muy grandes (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>Solo iconos</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Solo texto</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>Texto junto a los iconos</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>Texto debajo de los iconos</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>Quitar de la barra de herramientas</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>Español</translation>
    </message>
</context>
</TS>
