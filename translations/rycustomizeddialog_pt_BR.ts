<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>Localizar uma ação</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>A tecla Enter adiciona a ação à barra de ferramentas</translation>
    </message>
</context>
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>Exibição</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Ações</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barras de ferramentas</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Adicionar uma nova barra de ferramentas</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nova</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Remover a barra de ferramentas selecionada</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Renomear a barra de ferramentas</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Ações da barra de ferramentas atual</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Mover a ação para cima</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Remover a ação da barra de ferramentas</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Adicionar a ação à barra de ferramentas</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Mover a ação para baixo</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Descer</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>Exibição</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Ações</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barras de ferramentas</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Adicionar uma nova barra de ferramentas</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nova</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Remover a barra de ferramentas selecionada</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Renomear a barra de ferramentas</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Ações da barra de ferramentas atual</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Mover a ação para cima</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Remover a ação da barra de ferramentas</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Adicionar a ação à barra de ferramentas</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Mover a ação para baixo</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Descer</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
</context>
<context>
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>Aplicar as alterações às barras de ferramentas?</translation>
    </message>
</context>
<context>
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>Esta barra de ferramentas está vazia. Clique duas vezes em uma ação para adicioná-la.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>Personalizar as barras de ferramentas</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>Todas as barras de ferramentas estão como o aplicativo as criou.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>Restaurar as barras de ferramentas padrão?</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1: excluir a barra de ferramentas</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1: adicionar %2</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1: remover %2</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1: restaurar a ordem</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>Faixa de opções</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>Barra de ferramentas</translation>
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
        <translation>Barra de ferramentas personalizada</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>Documento de ajuda do KORVA!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>Personalizar as barras de ferramentas…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Outros</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>Se você a remover, ela voltará na próxima inicialização.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>Barra de ferramentas %1</translation>
    </message>
</context>
</TS>
