<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
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
    <name>ProfileChooser</name>
    <message>
        <source>Profile:</source>
        <translation>프로필:</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>다른 이름으로 저장…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>가져오기…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>내보내기…</translation>
    </message>
    <message>
        <source>Switch to the profile “%1”?</source>
        <translation>프로필 “%1”(으)로 전환하시겠습니까?</translation>
    </message>
    <message>
        <source>Your changes in this dialog are lost.</source>
        <translation>이 대화 상자에서 변경한 내용은 사라집니다.</translation>
    </message>
    <message>
        <source>The layout cannot be used.</source>
        <translation>이 레이아웃은 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>프로필 저장</translation>
    </message>
    <message>
        <source>Replace the profile “%1”?</source>
        <translation>프로필 “%1”을(를) 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>Remove the profile “%1”?</source>
        <translation>프로필 “%1”을(를) 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Import Layout</source>
        <translation>레이아웃 가져오기</translation>
    </message>
    <message>
        <source>Export Layout</source>
        <translation>레이아웃 내보내기</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>레이아웃</translation>
    </message>
    <message>
        <source>This program does not have: %1</source>
        <translation>이 프로그램에 없는 항목: %1</translation>
    </message>
    <message>
        <source>Import this layout?</source>
        <translation>이 레이아웃을 가져오시겠습니까?</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>파일을 쓸 수 없습니다.</translation>
    </message>
    <message>
        <source>Name of the profile:</source>
        <translation>프로필 이름:</translation>
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
    <message>
        <source>Undo Toolbar Change</source>
        <translation>도구 모음 변경 실행 취소</translation>
    </message>
    <message>
        <source>Redo Toolbar Change</source>
        <translation>도구 모음 변경 다시 실행</translation>
    </message>
</context>
</TS>
