<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>اسحب الإجراءات إلى موضع في شريط الأدوات، أو إلى شريط أدوات آخر.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>اسحب الإجراءات لنقلها، وأيضًا إلى شريط أدوات آخر. اسحبها لتعود إلى كل الإجراءات لإزالتها.</translation>
    </message>
</context>
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>الإجراءات</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>أشرطة الأدوات</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>أضف شريط أدوات جديدًا</translation>
    </message>
    <message>
        <source>New</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>أزل شريط الأدوات المحدّد</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>أزل</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>أعد تسمية شريط الأدوات</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>أعد التّسمية</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>إجراءات شريط الأدوات الحاليّ</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>انقل الإجراء إلى أعلى</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>أزل الإجراء من شريط الأدوات</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>أضف الإجراء إلى شريط الأدوات</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>انقل الإجراء إلى أسفل</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>أسفل</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>الإجراءات</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>أشرطة الأدوات</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>أضف شريط أدوات جديدًا</translation>
    </message>
    <message>
        <source>New</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>أزل شريط الأدوات المحدّد</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>أزل</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>أعد تسمية شريط الأدوات</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>أعد التّسمية</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>إجراءات شريط الأدوات الحاليّ</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>انقل الإجراء إلى أعلى</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>أعلى</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>أزل الإجراء من شريط الأدوات</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>أضف الإجراء إلى شريط الأدوات</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>انقل الإجراء إلى أسفل</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>أسفل</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>خيارات</translation>
    </message>
</context>
<context>
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>يقص %1 الإجراءات المحدّدة. يدرجها %2 بعد الإجراء الحاليّ، وأيضًا في شريط أدوات آخر.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>يضيف %1 الإجراءات المقصوصة.</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>الشّريط</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>شريط الأدوات</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; فــاصــل &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>شريط أدوات مخصّص</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>مستند مساعدة KORVA!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>خصّص أشرطة الأدوات…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>أخرى</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>إذا أزلته فسيعود عند بدء التشغيل التالي.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>مسافة</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>شريط أدوات %1</translation>
    </message>
</context>
</TS>
