<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>Eylemleri araç çubuğunda bir yere veya başka bir araç çubuğuna sürükleyin.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>Eylemleri taşımak için sürükleyin; başka bir araç çubuğuna da taşıyabilirsiniz. Kaldırmak için tüm eylemlere geri sürükleyin.</translation>
    </message>
</context>
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Eylemler</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Araç Çubukları</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Yeni araç çubuğu ekle</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Yeni</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Seçili araç çubuğunu kaldır</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Araç çubuğunu yeniden adlandır</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Yeniden Adlandır</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Geçerli Araç Çubuğunun Eylemleri</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Eylemi yukarı taşı</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Yukarı</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Eylemi araç çubuğundan kaldır</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Eylemi araç çubuğuna ekle</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Eylemi aşağı taşı</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Aşağı</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Eylemler</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Araç Çubukları</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>Yeni araç çubuğu ekle</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Yeni</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>Seçili araç çubuğunu kaldır</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>Araç çubuğunu yeniden adlandır</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Yeniden Adlandır</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>Geçerli Araç Çubuğunun Eylemleri</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>Eylemi yukarı taşı</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Yukarı</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>Eylemi araç çubuğundan kaldır</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>Eylemi araç çubuğuna ekle</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>Eylemi aşağı taşı</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Aşağı</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
</context>
<context>
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 seçili eylemleri keser. %2 bunları geçerli eylemin arkasına ekler, başka bir araç çubuğunda da.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 kesilen eylemleri ekler.</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>Şerit</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>Araç Çubuğu</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; A Y I R I C I &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>Özel Araç Çubuğu</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>KORVA yardım belgesi!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>Araç Çubuklarını Özelleştir…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Diğer</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>Kaldırırsanız bir sonraki açılışta geri gelir.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Boşluk</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>Araç Çubuğu %1</translation>
    </message>
</context>
</TS>
