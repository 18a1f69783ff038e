<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
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
</TS>
