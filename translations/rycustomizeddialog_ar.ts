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
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>أُزيل: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>أُضيف: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>نُقل: %1، %2 من %3</translation>
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
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 يضيف الإجراء الحاليّ إلى شريط الأدوات</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 ينشئ شريط أدوات، و%2 يعيد تسميته، و%3 يزيله</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 و%2 ينقلان الإجراء الحاليّ، و%3 يزيله</translation>
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
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>الملف الشخصي:</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>احفظ باسم…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>أزل</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>استورد…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>صدّر…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>هل تريد الانتقال إلى الملف الشخصي «%1»؟</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>ستفقد تغييراتك في مربّع الحوار هذا.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>لا يمكن استخدام التخطيط.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>حفظ الملف الشخصي</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>هل تريد استبدال الملف الشخصي «%1»؟</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>هل تريد إزالة الملف الشخصي «%1»؟</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>استيراد تخطيط</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>تصدير التخطيط</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>التّخطيطات</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>لا يوجد في هذا البرنامج: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>هل تريد استيراد هذا التخطيط؟</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>لا يمكن كتابة الملف.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>اسم الملف الشخصي:</translation>
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
    <message>
        <source>Unlock the toolbars</source>
        <translation>إلغاء قفل أشرطة الأدوات</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1: استعادة حجم الأيقونات وموضع النص</translation>
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
    <message>
        <source>Undo Toolbar Change</source>
        <translation>تراجع عن تغيير أشرطة الأدوات</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>أعد تغيير أشرطة الأدوات</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>فاصل</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>يأتي مع البرنامج ولا يمكن إعادة تسميته ولا إزالته</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>اسم شريط الأدوات</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>أشرطة الأدوات</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>حجم الأيقونات</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>موضع النص</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>أقفل أشرطة الأدوات</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>أعد ضبط شريط الأدوات هذا</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>كما يحدّده البرنامج</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>صغير (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>متوسط (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>كبير (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>كبير جدًا (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>أيقونات فقط</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>نص فقط</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>النص بجانب الأيقونات</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>النص تحت الأيقونات</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>أزل من شريط الأدوات</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>العربية</translation>
    </message>
</context>
</TS>
