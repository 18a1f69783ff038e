<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>ActionSearch</name>
    <message>
        <source>Find an action</source>
        <translation>동작 찾기</translation>
    </message>
    <message>
        <source>The Return key adds the action to the toolbar</source>
        <translation>엔터 키를 누르면 동작이 도구 모음에 추가됩니다</translation>
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
    <name>EditProtection</name>
    <message>
        <source>Apply your changes to the toolbars?</source>
        <translation>도구 모음의 변경 사항을 적용할까요?</translation>
    </message>
</context>
<context>
    <name>ReadableViews</name>
    <message>
        <source>This toolbar is empty. Double-click an action to add it.</source>
        <translation>이 도구 모음은 비어 있습니다. 동작을 두 번 클릭하면 추가됩니다.</translation>
    </message>
    <message>
        <source>Customize Toolbars</source>
        <translation>도구 모음 사용자 정의</translation>
    </message>
</context>
<context>
    <name>RestoreQuestion</name>
    <message>
        <source>All toolbars are as the application made them.</source>
        <translation>모든 도구 모음이 처음 상태 그대로입니다.</translation>
    </message>
    <message>
        <source>Restore the toolbars to their defaults?</source>
        <translation>도구 모음을 기본값으로 되돌릴까요?</translation>
    </message>
    <message>
        <source>%1: delete the toolbar</source>
        <translation>%1: 도구 모음 삭제</translation>
    </message>
    <message>
        <source>%1: add %2</source>
        <translation>%1: %2 추가</translation>
    </message>
    <message>
        <source>%1: remove %2</source>
        <translation>%1: %2 제거</translation>
    </message>
    <message>
        <source>%1: restore the order</source>
        <translation>%1: 순서 되돌리기</translation>
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
