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
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>Eylem bul</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>Giriş tuşu eylemi araç çubuğuna ekler</translation>
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
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>Araç çubuklarındaki değişiklikler uygulansın mı?</translation>
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
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>Bu araç çubuğu boş. Eklemek için bir eyleme çift tıklayın.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>Araç Çubuklarını Özelleştir</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>Tüm araç çubukları uygulamanın oluşturduğu gibi.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>Araç çubukları varsayılana döndürülsün mü?</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1: araç çubuğu silinir</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1: %2 eklenir</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1: %2 kaldırılır</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1: sıra geri getirilir</translation>
    </message>
    <message>
        <source>Unlock the toolbars</source>
        <translation>Araç çubuklarının kilidi açılır</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1: simge boyutu ve metin konumu geri getirilir</translation>
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
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>Araç Çubukları</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>Simge boyutu</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>Metin konumu</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>Araç çubuklarını kilitle</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>Bu araç çubuğunu sıfırla</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>Programın belirlediği gibi</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>Küçük (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>Orta (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>Büyük (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>Çok büyük (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>Yalnızca simgeler</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Yalnızca metin</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>Metin simgelerin yanında</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>Metin simgelerin altında</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>Araç çubuğundan kaldır</translation>
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
