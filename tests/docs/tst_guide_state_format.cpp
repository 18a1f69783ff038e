// SPDX-License-Identifier: MIT

#include "rytoolbarmanager.h"
#include "testcase.h"
#include "texts.h"

#include <QFile>
#include <QMainWindow>
#include <QRegularExpression>
#include <QtEndian>
#include <QtTest>

namespace {

void fill(QMainWindow &window, RyToolBarManager &manager)
{
    //! [host]
    manager.setMainWindow(&window);
    QToolBar *const edit = window.addToolBar(QStringLiteral("Edit"));
    edit->setObjectName(QStringLiteral("edit"));
    QAction *const cut = edit->addAction(QStringLiteral("Cut"));
    cut->setObjectName(QStringLiteral("cut"));
    edit->addSeparator();
    edit->addAction(QStringLiteral("Find")); // without an objectName
    manager.addDefaultToolBar(edit, QStringLiteral("Edit"));
    manager.setToolBar(manager.createToolBar(QStringLiteral("Mine")), {cut});
    //! [host]
}

struct SmallHost
{
    SmallHost() { fill(window, manager); }

    QMainWindow window;
    RyToolBarManager manager;
};

struct DumpLine
{
    int offset;
    QByteArray bytes;
    QString text;
};

QList<DumpLine> dumpOnThePage()
{
    QFile file(STATE_FORMAT);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    const QRegularExpression format(
        QStringLiteral("^([0-9a-f]{4})  ((?:[0-9a-f]{2} )+) +(\\S.*)$"));
    QList<DumpLine> lines;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine());
        const QRegularExpressionMatch match = format.match(line.trimmed());
        if (!match.hasMatch())
            return {};
        lines.append({match.captured(1).toInt(nullptr, 16),
                      QByteArray::fromHex(match.captured(2).toLatin1()), match.captured(3)});
    }
    return lines;
}

QByteArray bytesOnThePage()
{
    QByteArray bytes;
    const auto lines = dumpOnThePage();
    for (const DumpLine &line : lines)
        bytes += line.bytes;
    return bytes;
}

} // namespace

class tst_guide_state_format : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theDumpIsWhatTheHostSaves();
    void theDumpIsRestored();
    void theOffsetsAreRight();
    void theTextsAreRight();
    void nothingTakesEighteenBytes();
};

void tst_guide_state_format::theDumpIsWhatTheHostSaves()
{
    const SmallHost host;
    QCOMPARE(bytesOnThePage().toHex(' '), host.manager.saveState(7).toHex(' '));
    QCOMPARE(takeWarnings().size(), 1);
}

void tst_guide_state_format::theDumpIsRestored()
{
    SmallHost host;
    QToolBar *const edit = host.manager.toolBarByName(QStringLiteral("edit"));
    QToolBar *const mine = host.manager.toolBarByName(QStringLiteral("_Custom_Toolbar_1"));
    host.manager.setToolBar(edit, {});
    host.manager.setToolBar(mine, {});
    mine->setWindowTitle(QString());
    QVERIFY(host.manager.restoreState(bytesOnThePage(), 7));
    QCOMPARE(standingOn(edit), words("cut | \"Find\""));
    QCOMPARE(standingOn(mine), words("cut"));
    QCOMPARE(mine->windowTitle(), QStringLiteral("Mine"));
    QCOMPARE(takeWarnings().size(), 1);
}

void tst_guide_state_format::theOffsetsAreRight()
{
    int offset = 0;
    const auto lines = dumpOnThePage();
    QVERIFY(!lines.isEmpty());
    for (const DumpLine &line : lines) {
        QCOMPARE(line.offset, offset);
        offset += line.bytes.size();
    }
}

// The text beside the bytes of a name shows that name; beside a number it shows that number.
void tst_guide_state_format::theTextsAreRight()
{
    const QRegularExpression quoted(QStringLiteral("^\"(.*)\"$"));
    const QRegularExpression counted(QStringLiteral(": (\\d+) bytes of UTF-16 follow$"));
    int names = 0;
    const auto lines = dumpOnThePage();
    for (const DumpLine &line : lines) {
        const QRegularExpressionMatch name = quoted.match(line.text);
        const QRegularExpressionMatch count = counted.match(line.text);
        if (name.hasMatch()) {
            ++names;
            QString text;
            for (int i = 0; i < line.bytes.size(); i += 2)
                text += QChar(qFromBigEndian<quint16>(line.bytes.constData() + i));
            QCOMPARE(name.captured(1), text);
        } else if (count.hasMatch()) {
            QCOMPARE(count.captured(1).toUInt(), qFromBigEndian<quint32>(line.bytes.constData()));
        }
    }
    QCOMPARE(names, 8);
}

void tst_guide_state_format::nothingTakesEighteenBytes()
{
    const RyToolBarManager manager;
    QCOMPARE(manager.saveState(1).size(), 18);
}

QTEST_MAIN(tst_guide_state_format)
#include "tst_guide_state_format.moc"
