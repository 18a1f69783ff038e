<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>ابحث عن إجراء</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>يضيف مفتاح الإدخال الإجراء إلى شريط الأدوات</translation>
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
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>هل تريد تطبيق تغييراتك على أشرطة الأدوات؟</translation>
    </message>
</context>
<context>
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>شريط الأدوات هذا فارغ. انقر إجراءً نقرًا مزدوجًا لإضافته.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>خصّص أشرطة الأدوات</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>كل أشرطة الأدوات كما أنشأها التطبيق.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>هل تريد إعادة أشرطة الأدوات إلى وضعها الافتراضيّ؟</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1: حذف شريط الأدوات</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1: إضافة %2</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1: إزالة %2</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1: استعادة الترتيب</translation>
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
