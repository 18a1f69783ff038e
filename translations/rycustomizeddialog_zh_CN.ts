<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>查找操作</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>按回车键将操作添加到工具栏</translation>
    </message>
</context>
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
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>要应用对工具栏的更改吗？</translation>
    </message>
</context>
<context>
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>此工具栏为空。双击操作即可添加。</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>自定义工具栏</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>所有工具栏均为应用程序的初始状态。</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>要将工具栏恢复为默认设置吗？</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1：删除工具栏</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1：添加 %2</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1：移除 %2</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1：恢复顺序</translation>
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
</context>
</TS>
