<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
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
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>פרופיל:</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>שמור בשם…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסר</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>ייבא…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>ייצא…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>לעבור לפרופיל „%1”?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>השינויים שלך בתיבת הדו־שיח הזאת יאבדו.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>אי אפשר להשתמש בפריסה.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>שמירת פרופיל</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>להחליף את הפרופיל „%1”?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>להסיר את הפרופיל „%1”?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>ייבוא פריסה</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>ייצוא הפריסה</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>פריסות</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>אין בתוכנית הזאת: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>לייבא את הפריסה הזאת?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>אי אפשר לכתוב את הקובץ.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>שם הפרופיל:</translation>
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
    <message>
        <source>Undo Toolbar Change</source>
        <translation>בטל את השינוי בסרגלי הכלים</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>בצע שוב את השינוי בסרגלי הכלים</translation>
    </message>
</context>
</TS>
