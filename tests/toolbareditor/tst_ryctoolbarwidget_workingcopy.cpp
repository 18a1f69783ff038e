// SPDX-License-Identifier: MIT

#include "fieldoffset.h"
#include "host.h"
#include "recordingtranslator.h"
#include "ryctoolbarwidget.h"
#include "showneditor.h"
#include "testcase.h"
#include "texts.h"
#include "toolbaritem.h"
#include "translations.h"
#include "virtualslots.h"

#include <QHeaderView>
#include <QMetaMethod>
#include <QtTest>

#include <algorithm>

namespace {

const int EntryAlignment = 0x881;

const QString Separator = QStringLiteral("< S E P A R A T O R >");

const QStringList AllButtons = {
    QStringLiteral("newButton"),  QStringLiteral("removeButton"), QStringLiteral("renameButton"),
    QStringLiteral("upButton"),   QStringLiteral("leftButton"),   QStringLiteral("rightButton"),
    QStringLiteral("downButton"),
};

QString accessOf(const QMetaMethod &method)
{
    switch (method.access()) {
    case QMetaMethod::Private:
        return QStringLiteral("private");
    case QMetaMethod::Protected:
        return QStringLiteral("protected");
    case QMetaMethod::Public:
        return QStringLiteral("public");
    }
    return QString();
}

QString described(const QMetaMethod &method)
{
    return QStringLiteral("%1 %2 %3 (%4)")
        .arg(accessOf(method), QLatin1String(method.typeName()),
             QLatin1String(method.methodSignature()),
             QLatin1String(method.parameterNames().join(", ")));
}

QIcon coloredIcon(const QColor &color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    return QIcon(pixmap);
}

// As the window system sends it, not as show() and hide() do.
template <typename Event> void sendSpontaneous(QWidget *widget)
{
    Event event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(widget, &event);
}

QList<QToolButton *> buttonsOf(const EditorViews &views)
{
    return {views.newButton,  views.removeButton, views.renameButton, views.upButton,
            views.leftButton, views.rightButton,  views.downButton};
}

void setAllEnabled(const EditorViews &views, bool enabled)
{
    const auto buttons = buttonsOf(views);
    for (QToolButton *button : buttons)
        button->setEnabled(enabled);
}

bool isEmpty(const EditorFields &fields)
{
    return fields.workingActions.isEmpty() && fields.recordOfToolBar.isEmpty()
        && fields.createdRecords.isEmpty() && fields.removedRecords.isEmpty()
        && fields.ownedRecords.isEmpty() && !fields.currentActionItem
        && fields.treeItemOfAction.isEmpty() && fields.actionOfTreeItem.isEmpty()
        && !fields.currentRecord && fields.listItemOfRecord.isEmpty()
        && fields.recordOfListItem.isEmpty() && fields.entryOfAction.isEmpty()
        && fields.actionOfEntry.isEmpty();
}

bool isEmpty(const EditorViews &views)
{
    return views.actionTree->topLevelItemCount() == 0 && views.toolBarList->count() == 0
        && views.currentToolBarList->count() == 0;
}

class EventCounter : public QObject
{
public:
    explicit EventCounter(QEvent::Type type)
        : m_type(type)
    {
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == m_type ? 1 : 0;
        return false;
    }

    int count = 0;

private:
    const QEvent::Type m_type;
};

QList<qptrdiff> fieldOffsetsOf(const RyCToolBarWidget &widget);
ToolBarItem *createRecord(RyCToolBarWidget &widget, QToolBar *toolBar);
void deleteRecord(RyCToolBarWidget &widget, ToolBarItem *record);

// The arguments of an explicit instantiation may name private members.
template <auto... Fields> struct FieldOffsets
{
    friend QList<qptrdiff> fieldOffsetsOf(const RyCToolBarWidget &widget)
    {
        return {fieldOffset(widget, Fields)...};
    }
};

template <ToolBarItem *(RyCToolBarWidget::*Create)(QToolBar *),
          void (RyCToolBarWidget::*Delete)(ToolBarItem *)>
struct RecordFunctions
{
    friend ToolBarItem *createRecord(RyCToolBarWidget &widget, QToolBar *toolBar)
    {
        return (widget.*Create)(toolBar);
    }
    friend void deleteRecord(RyCToolBarWidget &widget, ToolBarItem *record)
    {
        (widget.*Delete)(record);
    }
};

template struct FieldOffsets<
    &RyCToolBarWidget::ui, &RyCToolBarWidget::m_manager, &RyCToolBarWidget::m_workingActions,
    &RyCToolBarWidget::m_recordOfToolBar, &RyCToolBarWidget::m_createdRecords,
    &RyCToolBarWidget::m_removedRecords, &RyCToolBarWidget::m_ownedRecords,
    &RyCToolBarWidget::m_currentActionItem, &RyCToolBarWidget::m_treeItemOfAction,
    &RyCToolBarWidget::m_actionOfTreeItem, &RyCToolBarWidget::m_currentRecord,
    &RyCToolBarWidget::m_listItemOfRecord, &RyCToolBarWidget::m_recordOfListItem,
    &RyCToolBarWidget::m_entryOfAction, &RyCToolBarWidget::m_actionOfEntry,
    &RyCToolBarWidget::m_separatorText>;

template struct RecordFunctions<&RyCToolBarWidget::createItem, &RyCToolBarWidget::deleteItem>;

// A default toolbar and three custom ones.
class FilledHost : public Host
{
public:
    FilledHost()
    {
        defaultToolBar(QStringLiteral("file"),
                       {QStringLiteral("open"), QStringLiteral("|"), QStringLiteral("save")},
                       QStringLiteral("Files"));
        for (const char *name : {"copy", "cut", "paste"})
            registered(QLatin1String(name), QStringLiteral("Edits"));
        customToolBar(*this, QStringLiteral("Empty"), {});
        customToolBar(*this, QStringLiteral("Mine"),
                      {QStringLiteral("cut"), QStringLiteral("copy"), QStringLiteral("paste")});
        customToolBar(*this, QStringLiteral("Single"), {QStringLiteral("|")});
    }
};

} // namespace

class tst_RyCToolBarWidget_WorkingCopy : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theMetaObjectIsNamedAfterTheClass();
    void theSlotsStandInTheirOrder();
    void thereAreNoSignalsAndNoProperties();
    void theFieldsStandInTheirOrder();
    void thereAreNoNewVirtualFunctions();

    void theConstructorTakesParentAndFlags();
    void theConstructorFillsNothing();
    void theActionTreeHasOneColumnAndNoHeader();
    void sixButtonsHaveIcons_data();
    void sixButtonsHaveIcons();
    void theRenameButtonHasATextAndNoIcon();

    void theFillShowsEveryCategoryAndAction();
    void theFillAddsEachCategoryOnItsOwnAndSortsOnce();
    void everyLevelOfTheActionTreeIsSorted();
    void theSeparatorEntryIsSortedAmongTheCategories();
    void aCategoryNamedAsTheSeparatorEntryComesAfterIt();
    void theTranslatedSeparatorEntryIsSortedByItsTranslation();
    void theSeparatorIsTranslatedWhenTheEditorIsMade();
    void theSeparatorIsTranslatedAfterTheForm();
    void theSeparatorEntryIsCurrent();
    void theSeparatorEntryIsPlain();
    void categoriesArePlain();
    void anActionItemLooksLikeItsAction();
    void actionsWithTheSameTextHaveAnItemEach();
    void actionsWithTheSameTextKeepTheirOrder();
    void aCategoryWithoutActionsIsChildless();
    void everyActionItemIsKnown();

    void theFillShowsEveryToolBarSortedByTitle();
    void theFillSortsTheToolBarsEvenUnheard();
    void theWorkingCopyEqualsTheManager();
    void theSameTitleTwiceGivesTwoRows();
    void theFirstToolBarInPointerOrderIsCurrent();
    void theFirstEntryOfTheCurrentToolBarIsCurrent();
    void aDefaultToolBarIsDarkGreenAndNotEditable();
    void aCustomToolBarIsEditableAndNotColored();
    void theFillChangesEveryRowOnce();
    void theFillKnowsARowBeforeItsContentAndBothBeforeItIsCurrent();
    void theListIsSortedAfterEachChangeOfTheFill();
    void rowsOfTheSameTextStayInOrder();
    void aRowChangedWithoutACurrentToolBarIsSortedInLater();
    void aRowThatTheHostAddedIsSortedInLater();
    void aManagerWithoutAnythingGivesTheSeparatorEntryOnly();
    void removeAndRenameActOnNothingWithoutToolBars();
    void withoutAManagerTheEditorStaysEmpty();

    void selectingAToolBarShowsItsContent();
    void selectingAToolBarSetsTheButtons();
    void anEntryLooksLikeItsAction();
    void aSeparatorRowIsPlain();
    void selectingAnEmptyToolBarShowsNothing();
    void withoutACurrentToolBarNothingIsShown();
    void aForeignToolBarRowIsNoToolBar();
    void aForeignTreeItemIsNoAction();
    void selectingACategoryDisablesAdding();

    void theButtonsFollowTheSelection_data();
    void theButtonsFollowTheSelection();
    void theRuleSetsEveryButton_data();
    void theRuleSetsEveryButton();

    void hidingEmptiesTheEditor();
    void hidingEmptiesTheEditorEvenUnheard();
    void clearingDisablesSixButtonsAndLeavesRename_data();
    void clearingDisablesSixButtonsAndLeavesRename();
    void hidingLeavesRenameAsItIsWithoutACurrentToolBar();
    void showingAgainReadsTheManagerAgain();
    void hidingDiscardsTheEdits();
    void nothingIsAppliedWhileHidden();
    void spontaneousEventsKeepTheEdits();
    void otherEventsDoAsTheyAreNot();

    void noToolBarGivesNoRecord();
    void aForeignRecordIsNotFreed();
    void theRecordsAreFreed_data();
    void theRecordsAreFreed();
    void anEditorThatWasNeverShownCanBeDestroyed();
    void theDestructorDoesNotHideTheEditor();
};

void tst_RyCToolBarWidget_WorkingCopy::theMetaObjectIsNamedAfterTheClass()
{
    RyCToolBarWidget widget(nullptr, nullptr, Qt::WindowFlags());
    QCOMPARE(widget.metaObject()->className(), "RyCToolBarWidget");
    QCOMPARE(widget.metaObject()->superClass(), &QWidget::staticMetaObject);
}

void tst_RyCToolBarWidget_WorkingCopy::theSlotsStandInTheirOrder()
{
    const QMetaObject &meta = RyCToolBarWidget::staticMetaObject;
    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        methods << described(meta.method(i));
    }
    QCOMPARE(methods,
             QStringList({
                 QStringLiteral("public void applyClicked() ()"),
                 QStringLiteral("public void defaultClicked() ()"),
                 QStringLiteral("private void newClicked() ()"),
                 QStringLiteral("private void removeClicked() ()"),
                 QStringLiteral("private void upClicked() ()"),
                 QStringLiteral("private void downClicked() ()"),
                 QStringLiteral("private void rightClicked() ()"),
                 QStringLiteral("private void leftClicked() ()"),
                 QStringLiteral("private void renameClicked() ()"),
                 QStringLiteral("private void toolBarRenamed(QListWidgetItem*) (item)"),
                 QStringLiteral("private void currentActionChanged(QTreeWidgetItem*) (current)"),
                 QStringLiteral("private void currentToolBarChanged(QListWidgetItem*) (current)"),
                 QStringLiteral("private void currentToolBarActionChanged(QListWidgetItem*) "
                                "(current)"),
                 QStringLiteral("private void removeToolBar(ToolBarItem*) (item)"),
                 QStringLiteral("private bool isDefaultToolBar(ToolBarItem*) (item)"),
                 QStringLiteral("private void setButtons() ()"),
                 QStringLiteral("private void clearOld() ()"),
                 QStringLiteral("private void fillNew() ()"),
             }));
}

void tst_RyCToolBarWidget_WorkingCopy::thereAreNoSignalsAndNoProperties()
{
    const QMetaObject &meta = RyCToolBarWidget::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        QVERIFY(meta.method(i).methodType() != QMetaMethod::Signal);
    QCOMPARE(meta.propertyCount(), QWidget::staticMetaObject.propertyCount());
    QCOMPARE(meta.enumeratorCount(), QWidget::staticMetaObject.enumeratorCount());
    QCOMPARE(meta.constructorCount(), 0);
}

void tst_RyCToolBarWidget_WorkingCopy::theFieldsStandInTheirOrder()
{
    RyCToolBarWidget widget(nullptr, nullptr, Qt::WindowFlags());
    const auto offsets = fieldOffsetsOf(widget);
    QCOMPARE(offsets.size(), 16);
    for (int i = 0; i < offsets.size(); ++i)
        QCOMPARE(offsets.at(i), qptrdiff(sizeof(QWidget) + i * sizeof(void *)));
}

void tst_RyCToolBarWidget_WorkingCopy::thereAreNoNewVirtualFunctions()
{
    QCOMPARE(virtualSlotCount<RyCToolBarWidget>(), virtualSlotCount<QWidget>());
}

void tst_RyCToolBarWidget_WorkingCopy::theConstructorTakesParentAndFlags()
{
    QWidget parent;
    RyCToolBarWidget *const child = new RyCToolBarWidget(&parent, nullptr, Qt::WindowFlags());
    QCOMPARE(child->parentWidget(), &parent);
    QVERIFY(!child->isWindow());
    RyCToolBarWidget *const tool = new RyCToolBarWidget(&parent, nullptr, Qt::Tool);
    QCOMPARE(tool->windowType(), Qt::Tool);
    QCOMPARE(tool->parentWidget(), &parent);
}

void tst_RyCToolBarWidget_WorkingCopy::theConstructorFillsNothing()
{
    FilledHost host;
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const EditorViews views(&widget);
    QVERIFY(isEmpty(views));
    QVERIFY(isEmpty(EditorFields::of(widget)));
    // As the form made them.
    QCOMPARE(views.enabledButtons(), AllButtons);
}

void tst_RyCToolBarWidget_WorkingCopy::theActionTreeHasOneColumnAndNoHeader()
{
    FilledHost host;
    const ShownEditor editor(&host.manager);
    QCOMPARE(editor.views.actionTree->columnCount(), 1);
    QVERIFY(editor.views.actionTree->header()->isHidden());
    QVERIFY(!editor.views.actionTree->header()->isVisible());
}

void tst_RyCToolBarWidget_WorkingCopy::sixButtonsHaveIcons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("path");
    const QString path = QStringLiteral(":/RyCustomizedDialog/images/%1.png");
    QTest::newRow("up") << QStringLiteral("upButton") << path.arg(QLatin1String("up"));
    QTest::newRow("down") << QStringLiteral("downButton") << path.arg(QLatin1String("down"));
    QTest::newRow("left") << QStringLiteral("leftButton") << path.arg(QLatin1String("back"));
    QTest::newRow("right") << QStringLiteral("rightButton") << path.arg(QLatin1String("forward"));
    QTest::newRow("new") << QStringLiteral("newButton") << path.arg(QLatin1String("plus"));
    QTest::newRow("remove") << QStringLiteral("removeButton") << path.arg(QLatin1String("minus"));
}

void tst_RyCToolBarWidget_WorkingCopy::sixButtonsHaveIcons()
{
    QFETCH(QString, button);
    QFETCH(QString, path);
    RyCToolBarWidget widget(nullptr, nullptr, Qt::WindowFlags());
    const QIcon icon = widget.findChild<QToolButton *>(button)->icon();
    QCOMPARE(icon.availableSizes(), QList<QSize>{QSize(22, 22)});
    QCOMPARE(icon.pixmap(22, 22).toImage(), QIcon(path).pixmap(22, 22).toImage());
}

void tst_RyCToolBarWidget_WorkingCopy::theRenameButtonHasATextAndNoIcon()
{
    RyCToolBarWidget widget(nullptr, nullptr, Qt::WindowFlags());
    const EditorViews views(&widget);
    QVERIFY(views.renameButton->icon().isNull());
    QCOMPARE(views.renameButton->text(), QStringLiteral("Rename"));
}

void tst_RyCToolBarWidget_WorkingCopy::theFillShowsEveryCategoryAndAction()
{
    FilledHost host;
    // Registered, but on no toolbar.
    host.registered(QStringLiteral("zoom"), QStringLiteral("View"));
    // On a window's toolbar, but not registered.
    host.toolBar(QStringLiteral("foreign"), {QStringLiteral("unknown")});
    const ShownEditor editor(&host.manager);
    QCOMPARE(
        itemsOf(editor.views.actionTree),
        QStringList({Separator, QStringLiteral("Edits"), QStringLiteral("  Copy"),
                     QStringLiteral("  Cut"), QStringLiteral("  Paste"), QStringLiteral("Files"),
                     QStringLiteral("  Open"), QStringLiteral("  Save"), QStringLiteral("View"),
                     QStringLiteral("  Zoom")}));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::theFillAddsEachCategoryOnItsOwnAndSortsOnce()
{
    Host host;
    for (const char *name : {"two", "one"})
        host.registered(QLatin1String(name), QStringLiteral("Digits"));
    host.registered(QStringLiteral("alpha"), QStringLiteral("Names"));
    host.manager.addCategory(QStringLiteral("! None"));
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const QTreeWidget *const tree = EditorViews(&widget).actionTree;
    QStringList changes;
    connect(tree->model(), &QAbstractItemModel::rowsInserted, this,
            [&](const QModelIndex &parent, int first, int last) {
                QStringList texts(parent.data().toString() + QLatin1Char(':'));
                for (int row = first; row <= last; ++row)
                    texts << tree->model()->index(row, 0, parent).data().toString();
                changes << texts.join(QLatin1Char(' '));
            });
    connect(tree->model(), &QAbstractItemModel::layoutChanged, this,
            [&] { changes << QStringLiteral("sorted"); });
    widget.show();
    QCOMPARE(changes,
             QStringList({QStringLiteral(": ") + Separator, QStringLiteral(": ! None"),
                          QStringLiteral(": Digits"), QStringLiteral("Digits: Two One"),
                          QStringLiteral(": Names"), QStringLiteral("Names: Alpha"),
                          QStringLiteral("sorted")}));
}

void tst_RyCToolBarWidget_WorkingCopy::everyLevelOfTheActionTreeIsSorted()
{
    Host host;
    for (const char *name : {"delta", "alpha", "charlie", "bravo"})
        host.registered(QLatin1String(name), QStringLiteral("Names"));
    host.registered(QStringLiteral("two"), QStringLiteral("Digits"));
    host.registered(QStringLiteral("one"), QStringLiteral("Digits"));
    const ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree),
             QStringList({Separator, QStringLiteral("Digits"), QStringLiteral("  One"),
                          QStringLiteral("  Two"), QStringLiteral("Names"),
                          QStringLiteral("  Alpha"), QStringLiteral("  Bravo"),
                          QStringLiteral("  Charlie"), QStringLiteral("  Delta")}));
}

void tst_RyCToolBarWidget_WorkingCopy::theSeparatorEntryIsSortedAmongTheCategories()
{
    Host host;
    host.registered(QStringLiteral("open"), QStringLiteral("Files"));
    host.registered(QStringLiteral("quit"), QStringLiteral("! Important"));
    const ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree),
             QStringList({QStringLiteral("! Important"), QStringLiteral("  Quit"), Separator,
                          QStringLiteral("Files"), QStringLiteral("  Open")}));
    QCOMPARE(currentOf(editor.views.actionTree), Separator);
}

void tst_RyCToolBarWidget_WorkingCopy::aCategoryNamedAsTheSeparatorEntryComesAfterIt()
{
    Host host;
    host.registered(QStringLiteral("open"), Separator);
    const ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree),
             QStringList({Separator, Separator, QStringLiteral("  Open")}));
    QCOMPARE(editor.views.actionTree->currentItem(), editor.views.actionTree->topLevelItem(0));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::theTranslatedSeparatorEntryIsSortedByItsTranslation()
{
    const Translations german("RyCToolBarWidget", {{Separator, QStringLiteral("Trenner")}});
    FilledHost host;
    host.registered(QStringLiteral("zoom"), QStringLiteral("View"));
    ShownEditor editor(&host.manager);
    QCOMPARE(
        itemsOf(editor.views.actionTree),
        QStringList({QStringLiteral("Edits"), QStringLiteral("  Copy"), QStringLiteral("  Cut"),
                     QStringLiteral("  Paste"), QStringLiteral("Files"), QStringLiteral("  Open"),
                     QStringLiteral("  Save"), QStringLiteral("Trenner"), QStringLiteral("View"),
                     QStringLiteral("  Zoom")}));
    QCOMPARE(currentOf(editor.views.actionTree), QStringLiteral("Trenner"));
    editor.selectToolBar(QStringLiteral("File"));
    QCOMPARE(
        rowsOf(editor.views.currentToolBarList),
        QStringList({QStringLiteral("Open"), QStringLiteral("Trenner"), QStringLiteral("Save")}));
}

// Not when it is shown: a language that is installed in between has no effect.
void tst_RyCToolBarWidget_WorkingCopy::theSeparatorIsTranslatedWhenTheEditorIsMade()
{
    Host host;
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const Translations german("RyCToolBarWidget", {{Separator, QStringLiteral("Trenner")}});
    widget.show();
    QCOMPARE(itemsOf(EditorViews(&widget).actionTree), QStringList{Separator});
}

void tst_RyCToolBarWidget_WorkingCopy::theSeparatorIsTranslatedAfterTheForm()
{
    RecordingTranslator translator;
    const RyCToolBarWidget widget(nullptr, nullptr, Qt::WindowFlags());
    const QStringList lookUps = translator.takeLookUps();
    QCOMPARE(lookUps.filter(QStringLiteral("CToolBarPage: ")).size(), lookUps.size() - 1);
    QCOMPARE(lookUps.constLast(), QStringLiteral("RyCToolBarWidget: ") + Separator);
}

void tst_RyCToolBarWidget_WorkingCopy::theSeparatorEntryIsCurrent()
{
    FilledHost host;
    const ShownEditor editor(&host.manager);
    QCOMPARE(currentOf(editor.views.actionTree), Separator);
    const EditorFields fields = EditorFields::of(editor.widget);
    QCOMPARE(fields.currentActionItem, editor.views.actionTree->currentItem());
    QCOMPARE(fields.treeItemOfAction.value(nullptr), fields.currentActionItem);
    QVERIFY(editor.views.rightButton->isEnabled());
}

void tst_RyCToolBarWidget_WorkingCopy::theSeparatorEntryIsPlain()
{
    Host host;
    const ShownEditor editor(&host.manager);
    const QTreeWidgetItem *const item = itemNamed(editor.views.actionTree, Separator);
    QVERIFY(item);
    QVERIFY(!item->parent());
    QCOMPARE(item->flags(), QTreeWidgetItem().flags());
    QVERIFY(item->icon(0).isNull());
    QVERIFY(!item->data(0, Qt::TextAlignmentRole).isValid());
}

void tst_RyCToolBarWidget_WorkingCopy::categoriesArePlain()
{
    FilledHost host;
    const ShownEditor editor(&host.manager);
    QTreeWidgetItem *const item = itemNamed(editor.views.actionTree, QStringLiteral("Edits"));
    QVERIFY(item);
    QVERIFY(!item->parent());
    QCOMPARE(item->flags(), QTreeWidgetItem().flags());
    QVERIFY(item->icon(0).isNull());
    QVERIFY(!item->data(0, Qt::TextAlignmentRole).isValid());
    QVERIFY(!EditorFields::of(editor.widget).actionOfTreeItem.contains(item));
}

void tst_RyCToolBarWidget_WorkingCopy::anActionItemLooksLikeItsAction()
{
    Host host;
    QAction *const action = host.registered(QStringLiteral("open"), QStringLiteral("Files"));
    action->setText(QStringLiteral("&Open..."));
    action->setIcon(coloredIcon(Qt::red));
    const ShownEditor editor(&host.manager);
    QTreeWidgetItem *const item = itemNamed(editor.views.actionTree, QStringLiteral("&Open..."));
    QVERIFY(item);
    QCOMPARE(item->parent(), itemNamed(editor.views.actionTree, QStringLiteral("Files")));
    QCOMPARE(item->icon(0).cacheKey(), action->icon().cacheKey());
    QCOMPARE(item->textAlignment(0), EntryAlignment);
    QCOMPARE(item->flags(), QTreeWidgetItem().flags() | Qt::ItemIsDragEnabled);
    QCOMPARE(EditorFields::of(editor.widget).actionOfTreeItem.value(item), action);
}

void tst_RyCToolBarWidget_WorkingCopy::actionsWithTheSameTextHaveAnItemEach()
{
    Host host;
    host.registered(QStringLiteral("open"), QStringLiteral("Files"));
    host.registered(QStringLiteral("other"), QStringLiteral("Files"))
        ->setText(QStringLiteral("Open"));
    const ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree),
             QStringList({Separator, QStringLiteral("Files"), QStringLiteral("  Open"),
                          QStringLiteral("  Open")}));
    QCOMPARE(EditorFields::of(editor.widget).actionOfTreeItem.size(), 3);
}

void tst_RyCToolBarWidget_WorkingCopy::actionsWithTheSameTextKeepTheirOrder()
{
    Host host;
    for (const char *name : {"delta", "alpha", "charlie", "bravo"})
        host.registered(QLatin1String(name), QStringLiteral("Names"))
            ->setText(QStringLiteral("Same"));
    const ShownEditor editor(&host.manager);
    const EditorFields fields = EditorFields::of(editor.widget);
    QTreeWidgetItem *const names = itemNamed(editor.views.actionTree, QStringLiteral("Names"));
    QVERIFY(names);
    QList<QAction *> shown;
    for (int i = 0; i < names->childCount(); ++i)
        shown << fields.actionOfTreeItem.value(names->child(i));
    QCOMPARE(shown, host.manager.categoryActions(QStringLiteral("Names")));
    QCOMPARE(shown.size(), 4);
}

void tst_RyCToolBarWidget_WorkingCopy::aCategoryWithoutActionsIsChildless()
{
    Host host;
    host.manager.addCategory(QStringLiteral("Nothing"));
    host.manager.addCategory(QString());
    const ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree),
             QStringList({QString(), Separator, QStringLiteral("Nothing")}));
}

void tst_RyCToolBarWidget_WorkingCopy::everyActionItemIsKnown()
{
    FilledHost host;
    const ShownEditor editor(&host.manager);
    const EditorFields fields = EditorFields::of(editor.widget);
    QSet<QAction *> known = host.manager.actions();
    known.insert(nullptr);
    const auto keys = fields.treeItemOfAction.keys();
    QCOMPARE(QSet<QAction *>(keys.cbegin(), keys.cend()), known);
    for (QAction *action : keys) {
        const QString text = action ? action->text() : Separator;
        QCOMPARE(fields.treeItemOfAction.value(action)->text(0), text);
    }
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::theFillShowsEveryToolBarSortedByTitle()
{
    FilledHost host;
    host.defaultToolBar(QStringLiteral("zoom"), {}, QStringLiteral("View"));
    host.defaultToolBar(QStringLiteral("about"), {}, QStringLiteral("Help"));
    host.toolBar(QStringLiteral("foreign"));
    const ShownEditor editor(&host.manager);
    QCOMPARE(
        rowsOf(editor.views.toolBarList),
        QStringList({QStringLiteral("About"), QStringLiteral("Empty"), QStringLiteral("File"),
                     QStringLiteral("Mine"), QStringLiteral("Single"), QStringLiteral("Zoom")}));
}

// Not only because its own changes look like renames, which sort as well.
void tst_RyCToolBarWidget_WorkingCopy::theFillSortsTheToolBarsEvenUnheard()
{
    Host host;
    for (const char *title : {"Delta", "Alpha", "Charlie", "Bravo"})
        host.manager.createToolBar(QLatin1String(title));
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const EditorViews views(&widget);
    const QSignalBlocker unheard(views.toolBarList);
    widget.show();
    QCOMPARE(rowsOf(views.toolBarList),
             QStringList({QStringLiteral("Alpha"), QStringLiteral("Bravo"),
                          QStringLiteral("Charlie"), QStringLiteral("Delta")}));
}

void tst_RyCToolBarWidget_WorkingCopy::theWorkingCopyEqualsTheManager()
{
    FilledHost host;
    const ShownEditor editor(&host.manager);
    QCOMPARE(editor.workingCopy(),
             QStringList({QStringLiteral("Empty:"), QStringLiteral("File: open | save"),
                          QStringLiteral("Mine: cut copy paste"), QStringLiteral("Single: |")}));
    QCOMPARE(editor.workingCopy(), toolBarsOf(host.manager));
    QCOMPARE(editor.inconsistency(), QString());
    const EditorFields fields = EditorFields::of(editor.widget);
    QCOMPARE(fields.recordOfToolBar.keys(), host.manager.toolBars());
    for (auto it = fields.recordOfToolBar.cbegin(); it != fields.recordOfToolBar.cend(); ++it)
        QCOMPARE(it.value()->toolBar(), it.key());
    QVERIFY(fields.createdRecords.isEmpty());
    QVERIFY(fields.removedRecords.isEmpty());
}

void tst_RyCToolBarWidget_WorkingCopy::theSameTitleTwiceGivesTwoRows()
{
    FilledHost host;
    host.manager.createToolBar(QStringLiteral("File"));
    const ShownEditor editor(&host.manager);
    QCOMPARE(rowsOf(editor.views.toolBarList),
             QStringList({QStringLiteral("Empty"), QStringLiteral("File"), QStringLiteral("File"),
                          QStringLiteral("Mine"), QStringLiteral("Single")}));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::theFirstToolBarInPointerOrderIsCurrent()
{
    FilledHost host;
    QToolBar *const first = host.manager.toolBars().first();
    // Neither the first nor the last of the sorted list.
    first->setWindowTitle(QStringLiteral("First"));
    const ShownEditor editor(&host.manager);
    QCOMPARE(currentOf(editor.views.toolBarList), QStringLiteral("First"));
    QCOMPARE(EditorFields::of(editor.widget).currentRecord->toolBar(), first);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::theFirstEntryOfTheCurrentToolBarIsCurrent()
{
    Host host;
    host.defaultToolBar(QStringLiteral("file"), {QStringLiteral("open"), QStringLiteral("save")},
                        QStringLiteral("Files"));
    const ShownEditor editor(&host.manager);
    QCOMPARE(rowsOf(editor.views.currentToolBarList),
             QStringList({QStringLiteral("Open"), QStringLiteral("Save")}));
    QCOMPARE(editor.views.currentToolBarList->currentRow(), 0);
}

void tst_RyCToolBarWidget_WorkingCopy::aDefaultToolBarIsDarkGreenAndNotEditable()
{
    FilledHost host;
    const ShownEditor editor(&host.manager);
    const QListWidgetItem *const row = itemNamed(editor.views.toolBarList, QStringLiteral("File"));
    QVERIFY(row);
    QCOMPARE(row->foreground().color(), QColor(Qt::darkGreen));
    QCOMPARE(row->flags(), QListWidgetItem().flags());
    QVERIFY(!row->flags().testFlag(Qt::ItemIsEditable));
    editor.views.doubleClick(editor.views.toolBarList, editor.views.toolBarList->row(row));
    QVERIFY(!editor.views.renameEditor());
}

void tst_RyCToolBarWidget_WorkingCopy::aCustomToolBarIsEditableAndNotColored()
{
    FilledHost host;
    const ShownEditor editor(&host.manager);
    const QListWidgetItem *const row = itemNamed(editor.views.toolBarList, QStringLiteral("Mine"));
    QVERIFY(row);
    QVERIFY(!row->data(Qt::ForegroundRole).isValid());
    QCOMPARE(row->flags(), QListWidgetItem().flags() | Qt::ItemIsEditable);
    editor.views.doubleClick(editor.views.toolBarList, editor.views.toolBarList->row(row));
    QVERIFY(editor.views.renameEditor());
}

// Each change reaches the renaming, which must find the names as they are.
void tst_RyCToolBarWidget_WorkingCopy::theFillChangesEveryRowOnce()
{
    FilledHost host;
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const EditorViews views(&widget);
    QStringList changed;
    connect(views.toolBarList, &QListWidget::itemChanged, this,
            [&changed](const QListWidgetItem *row) { changed << row->text(); });
    widget.show();
    changed.sort();
    QCOMPARE(changed, rowsOf(views.toolBarList));
    widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager),
             QStringList({QStringLiteral("Empty:"), QStringLiteral("File: open | save"),
                          QStringLiteral("Mine: cut copy paste"), QStringLiteral("Single: |")}));
}

void tst_RyCToolBarWidget_WorkingCopy::theFillKnowsARowBeforeItsContentAndBothBeforeItIsCurrent()
{
    Host host;
    host.registered(QStringLiteral("cut"), QStringLiteral("Edits"));
    customToolBar(host, QStringLiteral("Mine"), {QStringLiteral("cut")});
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const QListWidget *const list = EditorViews(&widget).toolBarList;
    QStringList seen;
    const auto note = [&](const char *event) {
        const EditorFields fields = EditorFields::of(widget);
        const bool editable = list->item(0)->flags().testFlag(Qt::ItemIsEditable);
        seen << QStringLiteral("%1: %2 recorded, %3 rows, %4 contents, %5")
                    .arg(QLatin1String(event))
                    .arg(fields.recordOfToolBar.size())
                    .arg(fields.recordOfListItem.size())
                    .arg(fields.workingActions.size())
                    .arg(editable ? QStringLiteral("editable") : QStringLiteral("plain"));
    };
    connect(list->model(), &QAbstractItemModel::rowsInserted, this, [&] { note("inserted"); });
    connect(list, &QListWidget::currentItemChanged, this, [&] { note("current"); });
    connect(list, &QListWidget::itemChanged, this, [&] { note("changed"); });
    widget.show();
    QCOMPARE(seen,
             QStringList({QStringLiteral("inserted: 1 recorded, 0 rows, 0 contents, plain"),
                          QStringLiteral("current: 1 recorded, 1 rows, 1 contents, plain"),
                          QStringLiteral("changed: 1 recorded, 1 rows, 1 contents, editable")}));
}

void tst_RyCToolBarWidget_WorkingCopy::theListIsSortedAfterEachChangeOfTheFill()
{
    Host host;
    for (int i = 0; i < 40; ++i)
        host.manager.createToolBar(QString::number((i * 17) % 20));
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const EditorViews views(&widget);
    int changes = 0;
    int sorted = 0;
    connect(views.toolBarList, &QListWidget::itemChanged, this, [&] {
        const QStringList rows = rowsOf(views.toolBarList);
        ++changes;
        sorted += rows.size() == changes && std::is_sorted(rows.cbegin(), rows.cend()) ? 1 : 0;
    });
    widget.show();
    QCOMPARE(changes, 40);
    QCOMPARE(sorted, 40);
    // The current row is that of the first toolbar, wherever it went.
    QCOMPARE(currentOf(views.toolBarList), host.manager.toolBars().first()->windowTitle());
}

void tst_RyCToolBarWidget_WorkingCopy::rowsOfTheSameTextStayInOrder()
{
    Host host;
    QStringList expected;
    for (int i = 0; i < 8; ++i)
        host.manager.createToolBar(QStringLiteral("Same"));
    const auto toolBars = host.manager.toolBars();
    for (int i = 0; i < toolBars.size(); ++i) {
        expected << QStringLiteral("Action%1").arg(i);
        QAction *const action = host.registered(QStringLiteral("action%1").arg(i), expected.last());
        host.manager.setToolBar(toolBars.at(i), {action});
    }
    const ShownEditor editor(&host.manager);
    QStringList shown;
    for (int i = 0; i < toolBars.size(); ++i) {
        editor.views.toolBarList->setCurrentRow(i);
        shown << rowsOf(editor.views.currentToolBarList);
    }
    QCOMPARE(shown, expected);
}

// Such a change is not taken over, so that the rows are out of order until the next one.
void tst_RyCToolBarWidget_WorkingCopy::aRowChangedWithoutACurrentToolBarIsSortedInLater()
{
    Host host;
    for (const char *title : {"A", "B", "C"})
        host.manager.createToolBar(QLatin1String(title));
    const ShownEditor editor(&host.manager);
    QListWidget *const list = editor.views.toolBarList;
    editor.views.click(editor.views.newButton);
    list->setCurrentItem(nullptr);
    list->item(0)->setText(QStringLiteral("Z"));
    QCOMPARE(rowsOf(list),
             QStringList({QStringLiteral("Z"), QStringLiteral("B"), QStringLiteral("C"),
                          QStringLiteral("Custom Toolbar")}));
    list->setCurrentRow(1);
    list->item(3)->setText(QStringLiteral("Y"));
    QCOMPARE(rowsOf(list),
             QStringList({QStringLiteral("B"), QStringLiteral("C"), QStringLiteral("Y"),
                          QStringLiteral("Z")}));
}

void tst_RyCToolBarWidget_WorkingCopy::aRowThatTheHostAddedIsSortedInLater()
{
    Host host;
    for (const char *title : {"A", "B", "C"})
        host.manager.createToolBar(QLatin1String(title));
    const ShownEditor editor(&host.manager);
    QListWidget *const list = editor.views.toolBarList;
    list->addItem(QStringLiteral("A of the host"));
    list->item(0)->setText(QStringLiteral("Z"));
    QCOMPARE(rowsOf(list),
             QStringList({QStringLiteral("A of the host"), QStringLiteral("B"), QStringLiteral("C"),
                          QStringLiteral("Z")}));
}

void tst_RyCToolBarWidget_WorkingCopy::aManagerWithoutAnythingGivesTheSeparatorEntryOnly()
{
    Host host;
    const ShownEditor editor(&host.manager);
    QCOMPARE(itemsOf(editor.views.actionTree), QStringList{Separator});
    QCOMPARE(rowsOf(editor.views.toolBarList), QStringList());
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    QVERIFY(!editor.views.toolBarList->currentItem());
    QCOMPARE(editor.views.enabledButtons(),
             QStringList({QStringLiteral("newButton"), QStringLiteral("removeButton"),
                          QStringLiteral("renameButton")}));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::removeAndRenameActOnNothingWithoutToolBars()
{
    Host host;
    const ShownEditor editor(&host.manager);
    editor.views.click(editor.views.removeButton);
    editor.views.click(editor.views.renameButton);
    QVERIFY(!editor.views.renameEditor());
    QCOMPARE(editor.views.toolBarList->count(), 0);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::withoutAManagerTheEditorStaysEmpty()
{
    ShownEditor editor(nullptr);
    QVERIFY(isEmpty(editor.views));
    QVERIFY(isEmpty(EditorFields::of(editor.widget)));
    // The fill leaves even the buttons alone.
    QCOMPARE(editor.views.enabledButtons(), AllButtons);
    editor.call("setButtons");
    QCOMPARE(editor.views.enabledButtons(), QStringList());
    editor.widget.applyClicked();
    editor.widget.hide();
    editor.widget.show();
    QVERIFY(isEmpty(editor.views));
    QVERIFY(isEmpty(EditorFields::of(editor.widget)));
}

void tst_RyCToolBarWidget_WorkingCopy::selectingAToolBarShowsItsContent()
{
    FilledHost host;
    const ShownEditor editor(&host.manager);
    editor.views.click(editor.views.toolBarList, QStringLiteral("Mine"));
    QCOMPARE(rowsOf(editor.views.currentToolBarList),
             QStringList({QStringLiteral("Cut"), QStringLiteral("Copy"), QStringLiteral("Paste")}));
    QCOMPARE(editor.views.currentToolBarList->currentRow(), 0);
    QCOMPARE(editor.inconsistency(), QString());

    editor.views.click(editor.views.toolBarList, QStringLiteral("File"));
    QCOMPARE(rowsOf(editor.views.currentToolBarList),
             QStringList({QStringLiteral("Open"), Separator, QStringLiteral("Save")}));
    QCOMPARE(editor.views.currentToolBarList->currentRow(), 0);
    QCOMPARE(editor.inconsistency(), QString());
}

// Itself, not only because another entry becomes current: these toolbars have none.
void tst_RyCToolBarWidget_WorkingCopy::selectingAToolBarSetsTheButtons()
{
    Host host;
    host.defaultToolBar(QStringLiteral("file"), {}, QString());
    customToolBar(host, QStringLiteral("Mine"), {});
    ShownEditor editor(&host.manager);
    const QStringList ofMine = {QStringLiteral("newButton"), QStringLiteral("removeButton"),
                                QStringLiteral("renameButton"), QStringLiteral("rightButton")};
    const QStringList ofFile = {QStringLiteral("newButton"), QStringLiteral("rightButton")};
    for (int i = 0; i < 2; ++i) {
        editor.selectToolBar(QStringLiteral("Mine"));
        QCOMPARE(editor.views.enabledButtons(), ofMine);
        editor.selectToolBar(QStringLiteral("File"));
        QCOMPARE(editor.views.enabledButtons(), ofFile);
    }
}

void tst_RyCToolBarWidget_WorkingCopy::anEntryLooksLikeItsAction()
{
    Host host;
    QAction *const action = host.registered(QStringLiteral("open"), QStringLiteral("Files"));
    action->setText(QStringLiteral("&Open..."));
    action->setIcon(coloredIcon(Qt::blue));
    customToolBar(host, QStringLiteral("Mine"), {QStringLiteral("open")});
    const ShownEditor editor(&host.manager);
    QListWidgetItem *const entry = editor.views.currentToolBarList->item(0);
    QVERIFY(entry);
    QCOMPARE(entry->text(), QStringLiteral("&Open..."));
    QCOMPARE(entry->icon().cacheKey(), action->icon().cacheKey());
    QCOMPARE(entry->textAlignment(), EntryAlignment);
    QCOMPARE(EditorFields::of(editor.widget).entryOfAction.value(action), entry);
}

void tst_RyCToolBarWidget_WorkingCopy::aSeparatorRowIsPlain()
{
    Host host;
    customToolBar(host, QStringLiteral("Mine"), {QStringLiteral("|"), QStringLiteral("|")});
    const ShownEditor editor(&host.manager);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList({Separator, Separator}));
    QListWidgetItem *const entry = editor.views.currentToolBarList->item(1);
    QVERIFY(entry->icon().isNull());
    QVERIFY(!entry->data(Qt::TextAlignmentRole).isValid());
    const EditorFields fields = EditorFields::of(editor.widget);
    QVERIFY(fields.actionOfEntry.contains(entry));
    QVERIFY(fields.entryOfAction.isEmpty());
}

void tst_RyCToolBarWidget_WorkingCopy::selectingAnEmptyToolBarShowsNothing()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("Mine"));
    editor.selectToolBar(QStringLiteral("Empty"));
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    QVERIFY(!editor.views.currentToolBarList->currentItem());
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::withoutACurrentToolBarNothingIsShown()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("Mine"));
    editor.views.toolBarList->setCurrentItem(nullptr);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    QVERIFY(!EditorFields::of(editor.widget).currentRecord);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::aForeignToolBarRowIsNoToolBar()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("Mine"));
    QListWidgetItem foreign;
    QVERIFY(QMetaObject::invokeMethod(&editor.widget, "currentToolBarChanged", Qt::DirectConnection,
                                      Q_ARG(QListWidgetItem *, &foreign)));
    QVERIFY(!EditorFields::of(editor.widget).currentRecord);
    QCOMPARE(rowsOf(editor.views.currentToolBarList), QStringList());
    QCOMPARE(editor.views.enabledButtons(),
             QStringList({QStringLiteral("newButton"), QStringLiteral("removeButton"),
                          QStringLiteral("renameButton")}));
}

void tst_RyCToolBarWidget_WorkingCopy::aForeignTreeItemIsNoAction()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    QVERIFY(editor.views.rightButton->isEnabled());
    QTreeWidgetItem foreign;
    QVERIFY(QMetaObject::invokeMethod(&editor.widget, "currentActionChanged", Qt::DirectConnection,
                                      Q_ARG(QTreeWidgetItem *, &foreign)));
    QVERIFY(!EditorFields::of(editor.widget).currentActionItem);
    QVERIFY(!editor.views.rightButton->isEnabled());
}

void tst_RyCToolBarWidget_WorkingCopy::selectingACategoryDisablesAdding()
{
    FilledHost host;
    const ShownEditor editor(&host.manager);
    QVERIFY(editor.views.rightButton->isEnabled());
    editor.views.click(editor.views.actionTree, QStringLiteral("Edits"));
    QVERIFY(!editor.views.rightButton->isEnabled());
    editor.views.click(editor.views.actionTree, QStringLiteral("Cut"));
    QVERIFY(editor.views.rightButton->isEnabled());
    editor.views.click(editor.views.actionTree, QStringLiteral("Files"));
    QVERIFY(!editor.views.rightButton->isEnabled());
    editor.views.click(editor.views.actionTree, Separator);
    QVERIFY(editor.views.rightButton->isEnabled());
}

void tst_RyCToolBarWidget_WorkingCopy::theButtonsFollowTheSelection_data()
{
    QTest::addColumn<QString>("toolBar");
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("treeItem");
    QTest::addColumn<QString>("enabled");

    const QString none;
    const QString cut = QStringLiteral("Cut");
    const QString edits = QStringLiteral("Edits");
    const QString file = QStringLiteral("File");
    const QString mine = QStringLiteral("Mine");
    const QString empty = QStringLiteral("Empty");
    const QString single = QStringLiteral("Single");
    QTest::newRow("custom, first entry, action")
        << mine << 0 << cut << "new remove rename left right down";
    QTest::newRow("custom, middle entry, action")
        << mine << 1 << cut << "new remove rename up left right down";
    QTest::newRow("custom, last entry, action")
        << mine << 2 << cut << "new remove rename up left right";
    QTest::newRow("custom, no entry, action") << mine << -1 << cut << "new remove rename right";
    QTest::newRow("custom, middle entry, separator")
        << mine << 1 << Separator << "new remove rename up left right down";
    QTest::newRow("custom, middle entry, category")
        << mine << 1 << edits << "new remove rename up left down";
    QTest::newRow("custom, middle entry, nothing")
        << mine << 1 << none << "new remove rename up left down";
    QTest::newRow("custom, only entry, action")
        << single << 0 << cut << "new remove rename left right";
    QTest::newRow("custom, empty, action") << empty << -1 << cut << "new remove rename right";
    QTest::newRow("custom, empty, category") << empty << -1 << edits << "new remove rename";
    QTest::newRow("default, first entry, action") << file << 0 << cut << "new left right down";
    QTest::newRow("default, middle entry, separator")
        << file << 1 << Separator << "new up left right down";
    QTest::newRow("default, last entry, category") << file << 2 << edits << "new up left";
    QTest::newRow("default, no entry, nothing") << file << -1 << none << "new";
    QTest::newRow("no toolbar, action") << none << -1 << cut << "new remove rename";
    QTest::newRow("no toolbar, separator") << none << -1 << Separator << "new remove rename";
    QTest::newRow("no toolbar, category") << none << -1 << edits << "new remove rename";
    QTest::newRow("no toolbar, nothing") << none << -1 << none << "new remove rename";
}

void tst_RyCToolBarWidget_WorkingCopy::theButtonsFollowTheSelection()
{
    QFETCH(QString, toolBar);
    QFETCH(int, entry);
    QFETCH(QString, treeItem);
    QFETCH(QString, enabled);
    FilledHost host;
    ShownEditor editor(&host.manager);
    if (toolBar.isEmpty())
        editor.views.toolBarList->setCurrentItem(nullptr);
    else
        editor.selectToolBar(toolBar);
    editor.selectEntry(entry);
    if (treeItem.isEmpty())
        editor.views.actionTree->setCurrentItem(nullptr);
    else
        editor.selectAction(treeItem);

    QStringList expected = enabled.split(QLatin1Char(' '));
    expected.replaceInStrings(QRegularExpression(QStringLiteral("$")), QStringLiteral("Button"));
    QCOMPARE(editor.views.enabledButtons(), expected);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::theRuleSetsEveryButton_data()
{
    QTest::addColumn<bool>("enabledBefore");
    QTest::newRow("all disabled before") << false;
    QTest::newRow("all enabled before") << true;
}

void tst_RyCToolBarWidget_WorkingCopy::theRuleSetsEveryButton()
{
    QFETCH(bool, enabledBefore);
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("Mine"));
    editor.selectEntry(1);
    setAllEnabled(editor.views, enabledBefore);
    editor.call("setButtons");
    QCOMPARE(editor.views.enabledButtons(), AllButtons);

    editor.selectToolBar(QStringLiteral("File"));
    editor.selectEntry(-1);
    editor.selectAction(QStringLiteral("Edits"));
    setAllEnabled(editor.views, enabledBefore);
    editor.call("setButtons");
    QCOMPARE(editor.views.enabledButtons(), QStringList{QStringLiteral("newButton")});
}

void tst_RyCToolBarWidget_WorkingCopy::hidingEmptiesTheEditor()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("Mine"));
    editor.call("removeClicked");
    editor.call("newClicked");
    editor.widget.hide();
    QVERIFY(isEmpty(editor.views));
    QVERIFY(isEmpty(EditorFields::of(editor.widget)));
}

// Not only because the emptied views report that nothing is current.
void tst_RyCToolBarWidget_WorkingCopy::hidingEmptiesTheEditorEvenUnheard()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("Mine"));
    const QSignalBlocker unheardToolBars(editor.views.toolBarList);
    const QSignalBlocker unheardActions(editor.views.actionTree);
    editor.widget.hide();
    QVERIFY(isEmpty(editor.views));
    QVERIFY(isEmpty(EditorFields::of(editor.widget)));
}

void tst_RyCToolBarWidget_WorkingCopy::clearingDisablesSixButtonsAndLeavesRename_data()
{
    QTest::addColumn<bool>("renameEnabled");
    QTest::newRow("enabled before") << true;
    QTest::newRow("disabled before") << false;
}

void tst_RyCToolBarWidget_WorkingCopy::clearingDisablesSixButtonsAndLeavesRename()
{
    QFETCH(bool, renameEnabled);
    FilledHost host;
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const EditorViews views(&widget);
    setAllEnabled(views, true);
    views.renameButton->setEnabled(renameEnabled);
    // Nothing is current, so that the cleared views do not ask for the buttons' rule.
    QVERIFY(QMetaObject::invokeMethod(&widget, "clearOld", Qt::DirectConnection));
    const QStringList rename = {QStringLiteral("renameButton")};
    QCOMPARE(views.enabledButtons(), renameEnabled ? rename : QStringList());
}

// The toolbar list is emptied first; without a current toolbar the rule enables Rename.
void tst_RyCToolBarWidget_WorkingCopy::hidingLeavesRenameAsItIsWithoutACurrentToolBar()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    for (const char *title : {"File", "Mine"}) {
        editor.selectToolBar(QLatin1String(title));
        editor.widget.hide();
        QCOMPARE(editor.views.enabledButtons(), QStringList{QStringLiteral("renameButton")});
        editor.widget.show();
    }
}

void tst_RyCToolBarWidget_WorkingCopy::showingAgainReadsTheManagerAgain()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    host.registered(QStringLiteral("zoom"), QStringLiteral("View"));
    host.manager.addDefaultToolBar(host.toolBar(QStringLiteral("view"), {QStringLiteral("zoom")}),
                                   QStringLiteral("View"));
    host.manager.removeAction(host.action(QStringLiteral("copy")));
    host.window.findChild<QToolBar *>(QStringLiteral("file"))
        ->setWindowTitle(QStringLiteral("Documents"));
    // Not before it is shown again.
    QVERIFY(!itemNamed(editor.views.actionTree, QStringLiteral("Zoom")));
    QVERIFY(!itemNamed(editor.views.toolBarList, QStringLiteral("View")));

    editor.widget.hide();
    editor.widget.show();
    QCOMPARE(
        itemsOf(editor.views.actionTree),
        QStringList({Separator, QStringLiteral("Edits"), QStringLiteral("  Cut"),
                     QStringLiteral("  Paste"), QStringLiteral("Files"), QStringLiteral("  Open"),
                     QStringLiteral("  Save"), QStringLiteral("View"), QStringLiteral("  Zoom")}));
    QCOMPARE(
        rowsOf(editor.views.toolBarList),
        QStringList({QStringLiteral("Documents"), QStringLiteral("Empty"), QStringLiteral("Mine"),
                     QStringLiteral("Single"), QStringLiteral("View")}));
    QCOMPARE(editor.workingCopy(),
             QStringList({QStringLiteral("Documents: open | save"), QStringLiteral("Empty:"),
                          QStringLiteral("Mine: cut paste"), QStringLiteral("Single: |"),
                          QStringLiteral("View: zoom")}));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::hidingDiscardsTheEdits()
{
    FilledHost host;
    const QStringList before = toolBarsOf(host.manager);
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("Single"));
    editor.call("removeClicked");
    itemNamed(editor.views.toolBarList, QStringLiteral("Mine"))->setText(QStringLiteral("Yours"));
    editor.selectToolBar(QStringLiteral("File"));
    editor.call("leftClicked");
    editor.call("newClicked");
    QCOMPARE(
        editor.workingCopy(),
        QStringList({QStringLiteral("Custom Toolbar:"), QStringLiteral("Empty:"),
                     QStringLiteral("File: | save"), QStringLiteral("Yours: cut copy paste")}));

    editor.widget.hide();
    editor.widget.show();
    QCOMPARE(editor.workingCopy(), before);
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
}

void tst_RyCToolBarWidget_WorkingCopy::nothingIsAppliedWhileHidden()
{
    FilledHost host;
    const QStringList before = toolBarsOf(host.manager);
    ShownEditor editor(&host.manager);
    editor.call("leftClicked");
    editor.call("newClicked");
    editor.widget.hide();
    editor.widget.applyClicked();
    QCOMPARE(toolBarsOf(host.manager), before);
}

void tst_RyCToolBarWidget_WorkingCopy::spontaneousEventsKeepTheEdits()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    editor.selectToolBar(QStringLiteral("File"));
    editor.call("leftClicked");
    editor.selectAction(QStringLiteral("Cut"));
    const QStringList edited = editor.workingCopy();
    const QStringList tree = itemsOf(editor.views.actionTree);

    sendSpontaneous<QHideEvent>(&editor.widget);
    QCOMPARE(editor.workingCopy(), edited);
    sendSpontaneous<QShowEvent>(&editor.widget);
    QCOMPARE(editor.workingCopy(), edited);
    QVERIFY(edited.contains(QStringLiteral("File: | save")));
    QCOMPARE(itemsOf(editor.views.actionTree), tree);
    QCOMPARE(currentOf(editor.views.actionTree), QStringLiteral("Cut"));
    QCOMPARE(currentOf(editor.views.toolBarList), QStringLiteral("File"));
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::otherEventsDoAsTheyAreNot()
{
    FilledHost host;
    RyCToolBarWidget widget(nullptr, &host.manager, Qt::WindowFlags());
    const EditorViews views(&widget);
    QShowEvent show;
    QCoreApplication::sendEvent(&widget, &show);
    QCOMPARE(views.toolBarList->count(), 4);
    QHideEvent hide;
    QCoreApplication::sendEvent(&widget, &hide);
    QVERIFY(isEmpty(views));
    QVERIFY(isEmpty(EditorFields::of(widget)));
}

void tst_RyCToolBarWidget_WorkingCopy::noToolBarGivesNoRecord()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    QCOMPARE(createRecord(editor.widget, nullptr), nullptr);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::aForeignRecordIsNotFreed()
{
    FilledHost host;
    ShownEditor editor(&host.manager);
    ToolBarItem foreign(QStringLiteral("Foreign"));
    deleteRecord(editor.widget, &foreign);
    deleteRecord(editor.widget, nullptr);
    QCOMPARE(foreign.toolBarName(), QStringLiteral("Foreign"));
    // Nor is its own one freed twice.
    ToolBarItem *const own = createRecord(editor.widget, host.toolBar(QStringLiteral("other")));
    QVERIFY(EditorFields::of(editor.widget).ownedRecords.contains(own));
    deleteRecord(editor.widget, own);
    deleteRecord(editor.widget, own);
    QCOMPARE(editor.inconsistency(), QString());
}

void tst_RyCToolBarWidget_WorkingCopy::theRecordsAreFreed_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("hidden") << "hide";
    QTest::newRow("destroyed while shown") << "destroy";
    QTest::newRow("destroyed with its parent while shown") << "destroy parent";
    QTest::newRow("hidden, then destroyed") << "hide destroy";
    QTest::newRow("filled twice, then destroyed") << "hide show destroy";
    QTest::newRow("toolbar removed, then destroyed") << "remove destroy";
    QTest::newRow("toolbar removed and applied") << "remove apply";
    QTest::newRow("minimized, then destroyed") << "minimize destroy";
}

// A record shares its name with the toolbar's title, so that a leaked one keeps it shared.
void tst_RyCToolBarWidget_WorkingCopy::theRecordsAreFreed()
{
    QFETCH(QString, end);
    Host host;
    QString title = QString::fromLatin1("Title of its own");
    QToolBar *const toolBar = host.manager.createToolBar(title);
    const QPointer<QToolBar> guard = toolBar;
    QWidget *const parent = new QWidget;
    RyCToolBarWidget *const widget = new RyCToolBarWidget(parent, &host.manager, Qt::WindowFlags());
    parent->show();
    QCOMPARE(EditorFields::of(*widget).ownedRecords.size(), 1);
    QVERIFY(!title.isDetached());

    const QStringList steps = end.split(QLatin1Char(' '));
    for (const QString &step : steps) {
        if (step == QLatin1String("hide"))
            widget->hide();
        else if (step == QLatin1String("show"))
            widget->show();
        else if (step == QLatin1String("minimize"))
            sendSpontaneous<QHideEvent>(widget);
        else if (step == QLatin1String("remove"))
            QVERIFY(QMetaObject::invokeMethod(widget, "removeClicked"));
        else if (step == QLatin1String("apply"))
            widget->applyClicked();
        else if (step == QLatin1String("destroy") && !end.endsWith(QLatin1String("parent")))
            delete widget;
    }
    if (end.endsWith(QLatin1String("parent")))
        delete parent;
    if (guard)
        guard->setWindowTitle(QStringLiteral("Another"));
    QVERIFY(title.isDetached());
    if (!end.endsWith(QLatin1String("parent")))
        delete parent;
}

void tst_RyCToolBarWidget_WorkingCopy::anEditorThatWasNeverShownCanBeDestroyed()
{
    FilledHost host;
    const QStringList before = toolBarsOf(host.manager);
    delete new RyCToolBarWidget(nullptr, &host.manager, Qt::WindowFlags());
    QCOMPARE(toolBarsOf(host.manager), before);
}

void tst_RyCToolBarWidget_WorkingCopy::theDestructorDoesNotHideTheEditor()
{
    FilledHost host;
    QWidget parent;
    RyCToolBarWidget *const widget =
        new RyCToolBarWidget(&parent, &host.manager, Qt::WindowFlags());
    parent.show();
    QVERIFY(widget->isVisible());
    EventCounter hidden(QEvent::Hide);
    widget->installEventFilter(&hidden);
    delete widget;
    QCOMPARE(hidden.count, 0);
}

QTEST_MAIN(tst_RyCToolBarWidget_WorkingCopy)

#include "tst_ryctoolbarwidget_workingcopy.moc"
