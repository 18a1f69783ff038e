<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>将操作拖到工具栏中的某个位置，或拖到另一个工具栏上。</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>拖动操作即可移动，也可以拖到另一个工具栏上。拖回所有操作的列表即可移除。</translation>
    </message>
</context>
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
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>已移除：%1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>已添加：%1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>已移动：%1，第 %2 项，共 %3 项</translation>
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
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 剪切所选操作。%2 将其插入到当前操作之后，也可以插入到另一个工具栏中。</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 添加已剪切的操作。</translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 将当前操作添加到工具栏</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 新建工具栏，%2 重命名，%3 移除</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 和 %2 移动当前操作，%3 将其移除</translation>
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
    <message>
        <source>Unlock the toolbars</source>
        <translation>解锁工具栏</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1：恢复图标大小和文字位置</translation>
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
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>分隔符</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>随程序提供，不能重命名，也不能移除</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>工具栏的名称</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>图标大小</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>文字位置</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>锁定工具栏</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>重置此工具栏</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>由程序决定</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>小 (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>中 (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>大 (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>特大 (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>仅图标</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>仅文字</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>文字在图标旁</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>文字在图标下方</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>从工具栏移除</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>简体中文</translation>
    </message>
</context>
</TS>
