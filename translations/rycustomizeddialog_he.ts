<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>חפש פעולה</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>מקש הכניסה מוסיף את הפעולה לסרגל הכלים</translation>
    </message>
</context>
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>תצוגה</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>פעולות</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>סרגלי כלים</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>הוסף סרגל כלים חדש</translation>
    </message>
    <message>
        <source>New</source>
        <translation>חדש</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>הסר את סרגל הכלים הנבחר</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסר</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>שנה את שם סרגל הכלים</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>שנה שם</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>פעולות סרגל הכלים הנוכחי</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>הזז את הפעולה למעלה</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>למעלה</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>הסר את הפעולה מסרגל הכלים</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>הוסף את הפעולה לסרגל הכלים</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>הזז את הפעולה למטה</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>למטה</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>תצוגה</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>פעולות</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>סרגלי כלים</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>הוסף סרגל כלים חדש</translation>
    </message>
    <message>
        <source>New</source>
        <translation>חדש</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>הסר את סרגל הכלים הנבחר</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסר</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>שנה את שם סרגל הכלים</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>שנה שם</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>פעולות סרגל הכלים הנוכחי</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>הזז את הפעולה למעלה</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>למעלה</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>הסר את הפעולה מסרגל הכלים</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>הוסף את הפעולה לסרגל הכלים</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>הזז את הפעולה למטה</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>למטה</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>אפשרויות</translation>
    </message>
</context>
<context>
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>להחיל את השינויים על סרגלי הכלים?</translation>
    </message>
</context>
<context>
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>סרגל הכלים הזה ריק. לחץ פעמיים על פעולה כדי להוסיף אותה.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>התאם אישית את סרגלי הכלים</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>כל סרגלי הכלים הם כפי שהיישום יצר אותם.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>לשחזר את סרגלי הכלים לברירת המחדל?</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1: מחיקת סרגל הכלים</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1: הוספת %2</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1: הסרת %2</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1: שחזור הסדר</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>רצועת כלים</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>סרגל כלים</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; מ פ ר י ד &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>סרגל כלים מותאם אישית</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>עזרה</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>מסמך העזרה של KORVA!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>התאם אישית את סרגלי הכלים…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>אחר</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>אם תסיר אותה, היא תחזור בהפעלה הבאה.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>רווח</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>סרגל כלים %1</translation>
    </message>
</context>
</TS>
