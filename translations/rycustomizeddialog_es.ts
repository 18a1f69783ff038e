<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
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
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
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
</context>
</TS>
