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
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
</context>
<context>
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>Profil:</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Farklı Kaydet…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>İçe Aktar…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Dışa Aktar…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>“%1” profiline geçilsin mi?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>Bu penceredeki değişiklikleriniz kaybolur.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>Düzen kullanılamıyor.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Profili Kaydet</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>“%1” profili değiştirilsin mi?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>“%1” profili kaldırılsın mı?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>Düzeni İçe Aktar</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>Düzeni Dışa Aktar</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Düzenler</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>Bu programda bulunmayanlar: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>Bu düzen içe aktarılsın mı?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Dosya yazılamıyor.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>Profilin adı:</translation>
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
    <message>
        <source>Undo Toolbar Change</source>
        <translation>Araç Çubuğu Değişikliğini Geri Al</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>Araç Çubuğu Değişikliğini Yinele</translation>
    </message>
</context>
</TS>
