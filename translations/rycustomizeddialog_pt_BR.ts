<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
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
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>Perfil:</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Salvar como…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
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
        <translation>Mudar para o perfil “%1”?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>As suas alterações nesta caixa de diálogo serão perdidas.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>A disposição não pode ser usada.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Salvar o perfil</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>Substituir o perfil “%1”?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>Remover o perfil “%1”?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>Importar uma disposição</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>Exportar a disposição</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Disposições</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>Este programa não tem: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>Importar esta disposição?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Não é possível gravar o arquivo.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Nome do perfil:</translation>
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
    <message>
        <source>Undo Toolbar Change</source>
        <translation>Desfazer a alteração nas barras de ferramentas</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>Refazer a alteração nas barras de ferramentas</translation>
    </message>
</context>
</TS>
