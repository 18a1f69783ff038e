<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>アクションをツールバー内の位置または別のツールバーにドラッグします。</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>アクションをドラッグすると移動でき、別のツールバーにも移動できます。すべてのアクションの一覧に戻すと削除されます。</translation>
    </message>
</context>
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>アクションを検索</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>改行キーを押すとツールバーにアクションが追加されます</translation>
    </message>
</context>
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>アクション</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>新しいツールバーを追加</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>選択したツールバーを削除</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>ツールバーの名前を変更</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>現在のツールバーのアクション</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>アクションを上に移動</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>ツールバーからアクションを削除</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>ツールバーにアクションを追加</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>アクションを下に移動</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下へ</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>アクション</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>新しいツールバーを追加</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>選択したツールバーを削除</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>ツールバーの名前を変更</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前の変更</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>現在のツールバーのアクション</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>アクションを上に移動</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>ツールバーからアクションを削除</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>ツールバーにアクションを追加</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>アクションを下に移動</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下へ</translation>
    </message>
</context>
<context>
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>削除しました: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>追加しました: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>移動しました: %1、%3 個中 %2 番目</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
</context>
<context>
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 で選択したアクションを切り取ります。%2 で現在のアクションの後に挿入します。別のツールバーにも挿入できます。</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 で切り取ったアクションを追加します。</translation>
    </message>
</context>
<context>
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 で現在のアクションをツールバーに追加します</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 でツールバーを作成、%2 で名前を変更、%3 で削除します</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 と %2 で現在のアクションを移動、%3 で削除します</translation>
    </message>
</context>
<context>
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>ツールバーへの変更を適用しますか？</translation>
    </message>
</context>
<context>
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>プロファイル:</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>名前を付けて保存…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>インポート…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>プロファイル「%1」に切り替えますか?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>このダイアログでの変更は失われます。</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>このレイアウトは使用できません。</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>プロファイルを保存</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>プロファイル「%1」を置き換えますか?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>プロファイル「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>レイアウトをインポート</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>レイアウトをエクスポート</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>このプログラムにないもの: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>このレイアウトをインポートしますか?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>ファイルに書き込めません。</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>プロファイルの名前:</translation>
    </message>
</context>
<context>
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>このツールバーは空です。アクションをダブルクリックすると追加されます。</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>ツールバーをカスタマイズ</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>すべてのツールバーは初期状態のままです。</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>ツールバーを既定の状態に戻しますか？</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1：ツールバーを削除</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1：%2 を追加</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1：%2 を削除</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1：並び順を元に戻す</translation>
    </message>
    <message>
        <source>Unlock the toolbars</source>
        <translation>ツールバーの固定を解除</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1：アイコンのサイズとテキストの位置を元に戻す</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>リボン</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>ツールバー</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; 区 切 り &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>カスタムツールバー</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>KORVA のヘルプ文書！</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>ツールバーをカスタマイズ…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>削除しても、次回の起動時に元に戻ります。</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>スペース</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>ツールバー %1</translation>
    </message>
    <message>
        <source>Undo Toolbar Change</source>
        <translation>ツールバーの変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>ツールバーの変更をやり直す</translation>
    </message>
</context>
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>区切り</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>プログラムに付属のもので、名前の変更も削除もできません</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>ツールバーの名前</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>アイコンのサイズ</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>テキストの位置</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>ツールバーを固定</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>このツールバーをリセット</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>プログラムの設定どおり</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>小 (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>中 (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>大 (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>特大 (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>アイコンのみ</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>テキストのみ</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>アイコンの横にテキスト</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>アイコンの下にテキスト</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>ツールバーから削除</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>日本語</translation>
    </message>
</context>
</TS>
