<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
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
</context>
</TS>
