<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>ActionDrag</name>
    <message>
        <source>Drag actions to a place in the toolbar, or onto another toolbar.</source>
        <translation>동작을 도구 모음의 원하는 위치나 다른 도구 모음으로 끌어다 놓으세요.</translation>
    </message>
    <message>
        <source>Drag actions to move them, also onto another toolbar. Drag them back to all actions to remove them.</source>
        <translation>동작을 끌어서 이동하세요. 다른 도구 모음으로도 옮길 수 있습니다. 전체 동작 목록으로 다시 끌면 제거됩니다.</translation>
    </message>
</context>
<context>
    <name>CRibbonPage</name>
    <message>
        <source>Display</source>
        <translation>표시</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>새 도구 모음 추가</translation>
    </message>
    <message>
        <source>New</source>
        <translation>새로 만들기</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>선택한 도구 모음 삭제</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>도구 모음 이름 바꾸기</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>현재 도구 모음의 동작</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>동작을 위로 이동</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>위로</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>도구 모음에서 동작 제거</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>도구 모음에 동작 추가</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>동작을 아래로 이동</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>아래로</translation>
    </message>
</context>
<context>
    <name>CToolBarPage</name>
    <message>
        <source>Display</source>
        <translation>표시</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>동작</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>Add new toolbar</source>
        <translation>새 도구 모음 추가</translation>
    </message>
    <message>
        <source>New</source>
        <translation>새로 만들기</translation>
    </message>
    <message>
        <source>Remove selected toolbar</source>
        <translation>선택한 도구 모음 삭제</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Rename toolbar</source>
        <translation>도구 모음 이름 바꾸기</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>Current Toolbar Actions</source>
        <translation>현재 도구 모음의 동작</translation>
    </message>
    <message>
        <source>Move action up</source>
        <translation>동작을 위로 이동</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>위로</translation>
    </message>
    <message>
        <source>Remove action from toolbar</source>
        <translation>도구 모음에서 동작 제거</translation>
    </message>
    <message>
        <source>&lt;-</source>
        <translation>&lt;-</translation>
    </message>
    <message>
        <source>Add action to toolbar</source>
        <translation>도구 모음에 동작 추가</translation>
    </message>
    <message>
        <source>-&gt;</source>
        <translation>-&gt;</translation>
    </message>
    <message>
        <source>Move action down</source>
        <translation>동작을 아래로 이동</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>아래로</translation>
    </message>
</context>
<context>
    <name>CustomizedDialog</name>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
</context>
<context>
    <name>CutEntries</name>
    <message>
        <source>%1 cuts the selected actions. %2 inserts them after the current one, also in another toolbar.</source>
        <translation>%1 키는 선택한 동작을 잘라냅니다. %2 키는 현재 동작 뒤에 삽입하며, 다른 도구 모음에도 삽입할 수 있습니다.</translation>
    </message>
    <message>
        <source>%1 adds the actions that were cut.</source>
        <translation>%1 키는 잘라낸 동작을 추가합니다.</translation>
    </message>
</context>
<context>
    <name>RyCRibbonPage</name>
    <message>
        <source>Ribbon</source>
        <translation>리본</translation>
    </message>
</context>
<context>
    <name>RyCToolBarPage</name>
    <message>
        <source>ToolBar</source>
        <translation>도구 모음</translation>
    </message>
</context>
<context>
    <name>RyCToolBarWidget</name>
    <message>
        <source>&lt; S E P A R A T O R &gt;</source>
        <translation>&lt; 구 분 선 &gt;</translation>
    </message>
    <message>
        <source>Custom Toolbar</source>
        <translation>사용자 정의 도구 모음</translation>
    </message>
</context>
<context>
    <name>RyCustomizedDialog</name>
    <message>
        <source>help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>KORVA help  doc!</source>
        <translation>KORVA 도움말 문서!</translation>
    </message>
</context>
<context>
    <name>RyToolBarKit</name>
    <message>
        <source>Customize Toolbars…</source>
        <translation>도구 모음 사용자 정의…</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>기타</translation>
    </message>
    <message>
        <source>If you remove it, it returns at the next start.</source>
        <translation>제거해도 다음에 시작할 때 다시 나타납니다.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>공백</translation>
    </message>
    <message>
        <source>Toolbar %1</source>
        <translation>도구 모음 %1</translation>
    </message>
</context>
</TS>
