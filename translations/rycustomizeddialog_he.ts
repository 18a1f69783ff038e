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
