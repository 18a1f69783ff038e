<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>Arraste ações para um lugar da barra de ferramentas ou para outra barra de ferramentas.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>Arraste ações para movê-las, também para outra barra de ferramentas. Arraste-as de volta para todas as ações para removê-las.</translation>
    </message>
</context>
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
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>Removido: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Adicionado: %1</translation>
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
        <translation>Opções</translation>
    </message>
</context>
<context>
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 recorta as ações selecionadas. %2 as insere depois da atual, também em outra barra de ferramentas.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 adiciona as ações recortadas.</translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 adiciona a ação atual à barra de ferramentas</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 cria uma barra de ferramentas, %2 a renomeia, %3 a remove</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 e %2 movem a ação atual, %3 a remove</translation>
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
    <message>
        <source>Unlock the toolbars</source>
        <translation>Desbloquear as barras de ferramentas</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1: restaurar o tamanho dos ícones e a posição do texto</translation>
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
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>Separador</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>Faz parte do programa e não pode ser renomeada nem removida</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>Nome da barra de ferramentas</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>Barras de ferramentas</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>Tamanho dos ícones</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Posição do texto</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>Bloquear as barras de ferramentas</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>Redefinir esta barra de ferramentas</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>Conforme o programa</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>Pequeno (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>Médio (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>Grande (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>Muito grande (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>Somente ícones</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Somente texto</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>Texto ao lado dos ícones</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>Texto abaixo dos ícones</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>Remover da barra de ferramentas</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>Português</translation>
    </message>
</context>
</TS>
