<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
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
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>Kaldırıldı: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>Eklendi: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>Taşındı: %1, %2/%3</translation>
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
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 geçerli eylemi araç çubuğuna ekler</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 araç çubuğu oluşturur, %2 yeniden adlandırır, %3 kaldırır</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 ve %2 geçerli eylemi taşır, %3 kaldırır</translation>
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
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>Ayırıcı</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>Programla birlikte gelir; yeniden adlandırılamaz ve kaldırılamaz</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>Araç çubuğunun adı</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>Türkçe</translation>
    </message>
</context>
</TS>
