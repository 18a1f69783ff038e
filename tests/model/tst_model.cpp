// SPDX-License-Identifier: MIT

#include "isolatedrun.h"
#include "realdialog.h"
#include "sequence.h"
#include "sequencerange.h"
#include "shrinker.h"
#include "stage.h"
#include "testcase.h"

#include <QApplication>
#include <QDir>
#include <QToolBar>
#include <QtTest>

#include <csignal>

namespace {

// Two default toolbars and a custom one, everything on it, and the dialog with one more toolbar.
const char *const FullScript = "main-window 1\n"
                               "new-action\nnew-action\nnew-action\nnew-action\n"
                               "add-action 1 0\nadd-action 2 0\nadd-action 3 1\nadd-action 4 1\n"
                               "new-toolbar 0 0 1 0 2\n"
                               "add-default 1 0\n"
                               "new-toolbar 1 1 3\n"
                               "add-default 2 1\n"
                               "create 4\n"
                               "set 3 1 4 0 2 0 1\n"
                               "set 1 1 1 0 2 0 3\n"
                               "open\n"
                               "button 0\ntype 6\nreturn\n"
                               "row 3\n"
                               "item 2\n"
                               "entry 1\n";

Script scriptOf(const QString &text)
{
    Script script;
    const auto lines = text.split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines)
        script.push_back(Step::of(line.toStdString()));
    return script;
}

Script fullScript()
{
    return scriptOf(FullScript);
}

QWidget *dialog()
{
    return QApplication::activeWindow();
}

EditorViews views()
{
    return EditorViews(dialog());
}

} // namespace

Q_DECLARE_METATYPE(Sequence::Meddle)

class tst_Model : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void findingsStayFixed_data();
    void findingsStayFixed();
    void theFullScriptPasses();
    void aFaultIsFound_data();
    void aFaultIsFound();
    void aCrashIsFound();
    void aStepThatIsWrittenCanBeRead();
    void aSeedAlwaysMakesTheSameScript();
    void scriptsAreMadeOfAllSteps();
    void everyPartOfAScriptIsAScript();
    void aScriptIsShrunkToWhatFails();

private:
    void addFaultsOfObjects();
    void addFaultsOfTheManager();
    void addFaultsOfRows();
    void addFaultsOfTheTree();
    void addFaultsOfTheDialog();
};

void tst_Model::findingsStayFixed_data()
{
    QTest::addColumn<QString>("file");
    const auto files = QDir(QString(FINDINGS)).entryInfoList({"*.steps"});
    QVERIFY(!files.isEmpty());
    for (const QFileInfo &file : files)
        QTest::newRow(qPrintable(file.baseName())) << file.filePath();
}

void tst_Model::findingsStayFixed()
{
    QFETCH(QString, file);
    Script script;
    QVERIFY(readScript(file.toStdString(), script));
    QVERIFY(!script.empty());
    QCOMPARE(Sequence::run(script), QString());
}

void tst_Model::theFullScriptPasses()
{
    const auto isComplete = [](Stage &stage) {
        QCOMPARE(stage.toolBars.size(), std::size_t(3));
        QCOMPARE(stage.editorModel.rows.size(), std::size_t(4));
        QCOMPARE(stage.editorModel.entries.size(), std::size_t(5));
        QCOMPARE(stage.editorModel.created.size(), std::size_t(1));
        QVERIFY(dialog());
    };
    QCOMPARE(Sequence::run(fullScript(), isComplete), QString());
}

void tst_Model::aFaultIsFound_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<Sequence::Meddle>("meddle");
    addFaultsOfObjects();
    addFaultsOfTheManager();
    addFaultsOfRows();
    addFaultsOfTheTree();
    addFaultsOfTheDialog();
}

namespace {

void addFault(const char *what, const Sequence::Meddle &meddle)
{
    QTest::newRow(what) << what << meddle;
}

// An action that is one already keeps its place.
void replaceSeparator(QToolBar *toolBar)
{
    QAction *const separator = toolBar->actions().at(1);
    toolBar->insertSeparator(separator);
    delete separator;
}

} // namespace

void tst_Model::addFaultsOfObjects()
{
    addFault("actions on a toolbar", [](Stage &stage) {
        stage.toolBars[0]->removeAction(stage.toolBars[0]->actions().at(0));
    });
    addFault("separator:", [](Stage &stage) { replaceSeparator(stage.toolBars[0]); });
    addFault("deleted separator", [](Stage &stage) {
        // The model does not know of it, and takes it for gone.
        stage.world.deletedSeparators.push_back(
            stage.world.toolBars[stage.toolBars[0]].placed[1].separator);
    });
    addFault("windowTitle", [](Stage &stage) { stage.toolBars[2]->setWindowTitle("x"); });
    addFault("objectName:", [](Stage &stage) { stage.toolBars[2]->setObjectName("x"); });
    addFault("text of an action", [](Stage &stage) { stage.actions[0]->setText("x"); });
    addFault("toolbars of a window", [](Stage &stage) { stage.windows[1].addToolBar(QString()); });
    addFault("area", [](Stage &stage) {
        stage.windows[0].addToolBar(Qt::LeftToolBarArea, stage.toolBars[2]);
    });
}

void tst_Model::addFaultsOfTheManager()
{
    addFault("actions()", [](Stage &stage) { stage.manager.removeAction(stage.actions[3]); });
    addFault("categories()", [](Stage &stage) { stage.manager.addCategory("x"); });
    addFault("categoryActions()",
             [](Stage &stage) { stage.manager.addCategory(Stage::category(0)); });
    addFault("toolBarsActions()",
             [](Stage &stage) { stage.manager.setToolBar(stage.toolBars[2], {}); });
    addFault("toolBars()", [](Stage &stage) { stage.manager.createToolBar(QString()); });
    addFault("mainWindow()", [](Stage &stage) { stage.manager.setMainWindow(nullptr); });
    addFault("saveState()", [](Stage &stage) { stage.actions[1]->setObjectName("x"); });
    addFault("emitted signals", [](Stage &stage) { Q_EMIT stage.manager.toolBarRemoved(nullptr); });
    addFault("warnings", [](Stage &) { qWarning("x"); });
}

void tst_Model::addFaultsOfRows()
{
    addFault("name of a record", [](Stage &) { views().toolBarList->item(0)->setText("x"); });
    addFault("text of a toolbar row", [](Stage &) {
        const QSignalBlocker unheard(views().toolBarList);
        views().toolBarList->item(0)->setText("x");
    });
    addFault("color of a row",
             [](Stage &) { views().toolBarList->item(0)->setForeground(Qt::red); });
    addFault("editable row",
             [](Stage &) { views().toolBarList->item(3)->setFlags(Qt::ItemIsEnabled); });
    addFault("current record", [](Stage &) { views().toolBarList->setCurrentRow(0); });
    addFault("current entry", [](Stage &) { views().currentToolBarList->setCurrentRow(0); });
    addFault("text of an entry",
             [](Stage &) { views().currentToolBarList->item(2)->setText("x"); });
    addFault("icon of an entry",
             [](Stage &) { views().currentToolBarList->item(0)->setIcon(QIcon()); });
    addFault("alignment of an entry", [](Stage &) {
        views().currentToolBarList->item(0)->setTextAlignment(Qt::AlignRight);
    });
    addFault("action of an entry", [](Stage &) {
        QListWidget *const list = views().currentToolBarList;
        list->insertItem(3, list->takeItem(2));
    });
    addFault("rename editor",
             [](Stage &) { views().toolBarList->editItem(views().toolBarList->item(3)); });
}

void tst_Model::addFaultsOfTheTree()
{
    addFault("text of a top item",
             [](Stage &) { views().actionTree->topLevelItem(0)->setText(0, "x"); });
    addFault("text of an action item",
             [](Stage &) { views().actionTree->topLevelItem(1)->child(0)->setText(0, "x"); });
    addFault("top items", [](Stage &) { delete views().actionTree->takeTopLevelItem(2); });
    addFault("expanded", [](Stage &) { views().actionTree->expandAll(); });
    addFault("draggable item", [](Stage &) {
        views().actionTree->topLevelItem(1)->child(0)->setFlags(Qt::ItemIsEnabled);
    });
    addFault("text of the current item", [](Stage &) {
        views().actionTree->setCurrentItem(views().actionTree->topLevelItem(0));
    });
}

void tst_Model::addFaultsOfTheDialog()
{
    addFault("newButton", [](Stage &) { views().newButton->setEnabled(false); });
    addFault("upButton", [](Stage &) { views().upButton->setEnabled(false); });
    addFault("visible dialog", [](Stage &) { dialog()->hide(); });
    addFault("working copy", [](Stage &) { views().leftButton->click(); });
    addFault("created", [](Stage &) { views().newButton->click(); });
    addFault("tab", [](Stage &) { dialog()->findChild<QTabWidget *>()->setCurrentIndex(1); });
    addFault("result()", [](Stage &) { qobject_cast<QDialog *>(dialog())->setResult(9); });
}

void tst_Model::aFaultIsFound()
{
    QFETCH(QString, what);
    QFETCH(Sequence::Meddle, meddle);
    const QString result = Sequence::run(fullScript(), meddle);
    QVERIFY2(result.contains(what), qPrintable("reported: " + result));
}

void tst_Model::aCrashIsFound()
{
    QCOMPARE(IsolatedRun::run(fullScript()), QString());
    const auto crash = [](Stage &) { std::raise(SIGKILL); };
    QCOMPARE(IsolatedRun::run(fullScript(), crash), QString("ended by signal 9"));
}

void tst_Model::aStepThatIsWrittenCanBeRead()
{
    for (int kind = 0; kind < Step::KindCount; ++kind) {
        const Step written{static_cast<Step::Kind>(kind), {3, 0, 999}};
        const Step read = Step::of(written.text());
        QCOMPARE(read.kind, written.kind);
        QCOMPARE(read.numbers, written.numbers);
    }
    QCOMPARE(Step::of("no such step").kind, Step::KindCount);
}

void tst_Model::aSeedAlwaysMakesTheSameScript()
{
    QCOMPARE(textOf(SequenceRange::scriptOf(7, 200)), textOf(SequenceRange::scriptOf(7, 200)));
    QVERIFY(textOf(SequenceRange::scriptOf(7, 200)) != textOf(SequenceRange::scriptOf(9, 200)));
    QCOMPARE(SequenceRange::scriptOf(7, 200).size(), std::size_t(200));
}

void tst_Model::scriptsAreMadeOfAllSteps()
{
    std::vector<bool> used(Step::KindCount);
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        for (const Step &step : SequenceRange::scriptOf(seed, 200))
            used[step.kind] = true;
    }
    for (int kind = 0; kind < Step::KindCount; ++kind) {
        const std::string name = Step{static_cast<Step::Kind>(kind), {}}.text();
        QVERIFY2(used[static_cast<std::size_t>(kind)], name.c_str());
    }
}

void tst_Model::everyPartOfAScriptIsAScript()
{
    const Script whole = SequenceRange::scriptOf(2, 60);
    for (std::size_t part = 2; part < 5; ++part) {
        Script some;
        for (std::size_t place = 0; place < whole.size(); place += part)
            some.push_back(whole[place]);
        QCOMPARE(Sequence::run(some), QString());
    }
}

void tst_Model::aScriptIsShrunkToWhatFails()
{
    // Fails if a toolbar is created before one with a large number is reset.
    const auto fails = [](const Script &script) {
        bool created = false;
        for (const Step &step : script) {
            created = created || step.kind == Step::Create;
            if (created && step.kind == Step::Reset && step.number(1) > 2)
                return true;
        }
        return false;
    };
    Script script;
    for (std::uint64_t seed = 1; !fails(script); seed += 2)
        script = SequenceRange::scriptOf(seed, 200);
    QCOMPARE(textOf(Shrinker(fails).shrink(script)), std::string("create\nreset 0 3\n"));
}

QTEST_MAIN(tst_Model)

#include "tst_model.moc"
