<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>添加新工具栏</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>移除选中的工具栏</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>重命名工具栏</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>当前工具栏的操作</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>上移操作</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>从工具栏移除操作</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>将操作添加到工具栏</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>下移操作</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下移</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>添加新工具栏</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>移除选中的工具栏</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>重命名工具栏</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>当前工具栏的操作</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>上移操作</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>从工具栏移除操作</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>将操作添加到工具栏</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>下移操作</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下移</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
</context>
<context>
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>配置：</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>另存为…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>导入…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>要切换到配置“%1”吗？</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>您在此对话框中的更改将丢失。</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>无法使用此布局。</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>保存配置</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>要替换配置“%1”吗？</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>要移除配置“%1”吗？</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>导入布局</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>导出布局</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>此程序没有：%1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>要导入此布局吗？</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>无法写入文件。</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>配置名称：</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>功能区</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>工具栏</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; 分 隔 符 &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>自定义工具栏</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>KORVA 帮助文档！</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>自定义工具栏…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>如果将其移除，下次启动时会恢复。</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>工具栏 %1</translation>
    </message>
    <message>
        <source>Undo Toolbar Change</source>
        <translation>撤销工具栏更改</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>重做工具栏更改</translation>
    </message>
</context>
</TS>
