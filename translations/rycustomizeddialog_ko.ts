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
    <name>ChangeAnnouncer</name>
    <message>
        <source>Removed: %1</source>
        <translation>제거됨: %1</translation>
    </message>
    <message>
        <source>Added: %1</source>
        <translation>추가됨: %1</translation>
    </message>
    <message>
        <source>Moved: %1, %2 of %3</source>
        <translation>이동됨: %1, %3개 중 %2번째</translation>
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
    <name>DialogKeys</name>
    <message>
        <source>%1 adds the current action to the toolbar</source>
        <translation>%1 키로 현재 동작을 도구 모음에 추가합니다</translation>
    </message>
    <message>
        <source>%1 makes a toolbar, %2 renames it, %3 removes it</source>
        <translation>%1 키로 도구 모음을 만들고, %2 키로 이름을 바꾸고, %3 키로 제거합니다</translation>
    </message>
    <message>
        <source>%1 and %2 move the current action, %3 removes it</source>
        <translation>%1 키와 %2 키로 현재 동작을 이동하고, %3 키로 제거합니다</translation>
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
    <message>
        <source>Unlock the toolbars</source>
        <translation>도구 모음 잠금 해제</translation>
    </message>
    <message>
        <source>%1: restore icon size and text position</source>
        <translation>%1: 아이콘 크기와 텍스트 위치 되돌리기</translation>
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
<context>
    <name>SpokenNames</name>
    <message>
        <source>Separator</source>
        <translation>구분선</translation>
    </message>
    <message>
        <source>Comes with the program and can be neither renamed nor removed</source>
        <translation>프로그램에 포함된 것으로 이름을 바꾸거나 제거할 수 없습니다</translation>
    </message>
    <message>
        <source>Name of the toolbar</source>
        <translation>도구 모음의 이름</translation>
    </message>
</context>
<context>
    <name>ToolBarMenu</name>
    <message>
        <source>Toolbars</source>
        <translation>도구 모음</translation>
    </message>
    <message>
        <source>Icon size</source>
        <translation>아이콘 크기</translation>
    </message>
    <message>
        <source>Text position</source>
        <translation>텍스트 위치</translation>
    </message>
    <message>
        <source>Lock toolbars</source>
        <translation>도구 모음 잠그기</translation>
    </message>
    <message>
        <source>Reset this toolbar</source>
        <translation>이 도구 모음 초기화</translation>
    </message>
    <message>
        <source>As the program has it</source>
        <translation>프로그램 설정대로</translation>
    </message>
    <message>
        <source>Small (%1)</source>
        <translation>작게 (%1)</translation>
    </message>
    <message>
        <source>Medium (%1)</source>
        <translation>보통 (%1)</translation>
    </message>
    <message>
        <source>Large (%1)</source>
        <translation>크게 (%1)</translation>
    </message>
    <message>
        <source>Very large (%1)</source>
        <translation>아주 크게 (%1)</translation>
    </message>
    <message>
        <source>Icons only</source>
        <translation>아이콘만</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>텍스트만</translation>
    </message>
    <message>
        <source>Text beside icons</source>
        <translation>아이콘 옆에 텍스트</translation>
    </message>
    <message>
        <source>Text under icons</source>
        <translation>아이콘 아래에 텍스트</translation>
    </message>
    <message>
        <source>Remove from toolbar</source>
        <translation>도구 모음에서 제거</translation>
    </message>
</context>
<context>
    <name>UserGuide</name>
    <message>
        <source>English</source>
        <extracomment>The name of your language in itself. Where the user guide is translated, it is the name of its file.</extracomment>
        <translation>한국어</translation>
    </message>
</context>
</TS>
