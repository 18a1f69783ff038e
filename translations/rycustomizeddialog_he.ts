<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>גרור פעולות למקום בסרגל הכלים, או אל סרגל כלים אחר.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>גרור פעולות כדי להזיז אותן, גם אל סרגל כלים אחר. גרור אותן בחזרה אל כל הפעולות כדי להסיר אותן.</translation>
    </message>
</context>
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
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>הוסר: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>נוסף: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>הוזז: %1, %2 מתוך %3</translation>
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
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 גוזר את הפעולות שנבחרו. %2 מוסיף אותן אחרי הפעולה הנוכחית, גם בסרגל כלים אחר.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 מוסיף את הפעולות שנגזרו.</translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 מוסיף את הפעולה הנוכחית לסרגל הכלים</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 יוצר סרגל כלים, %2 משנה את שמו, %3 מסיר אותו</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 ו-%2 מזיזים את הפעולה הנוכחית, %3 מסיר אותה</translation>
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
    <message>
        <source>Unlock the toolbars</source>
        <translation>ביטול נעילת סרגלי הכלים</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1: שחזור גודל הסמלים ומיקום הטקסט</translation>
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
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>מפריד</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>מגיע עם התוכנית ואי אפשר לשנות את שמו או להסיר אותו</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>שם סרגל הכלים</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>סרגלי כלים</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>גודל הסמלים</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>מיקום הטקסט</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>נעל את סרגלי הכלים</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>אפס את סרגל הכלים הזה</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>כפי שנקבע בתוכנה</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>קטן (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>בינוני (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>גדול (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>גדול מאוד (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>סמלים בלבד</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>טקסט בלבד</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>טקסט לצד הסמלים</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>טקסט מתחת לסמלים</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>הסר מסרגל הכלים</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>עברית</translation>
    </message>
</context>
</TS>
