// SPDX-License-Identifier: MIT

#include "processuse.h"
#include "restorecheck.h"
#include "testcase.h"

#include <QDir>
#include <QtTest>

namespace {

// No input can have taken more than all of them together.
class ResidentGauge : public MemoryGauge
{
public:
    void begin() override
    {
        if (!m_begun)
            forgetPeak();
        if (!m_begun)
            m_before = residentBytes();
        m_begun = true;
    }
    qint64 growth() override { return memoryIsComparable() ? peakResidentBytes() - m_before : 0; }

private:
    bool m_begun = false;
    qint64 m_before = 0;
};

QFileInfoList inputsIn(const char *folder)
{
    const QDir dir(QString(RY_FUZZ_DIR "/") + folder);
    QFileInfoList files = dir.entryInfoList(QDir::Files, QDir::Name);
    for (int i = files.size() - 1; i >= 0; --i) {
        if (files.at(i).suffix() == "md")
            files.removeAt(i);
    }
    return files;
}

} // namespace

/*
 * Replays what the fuzzer keeps: inputs that reach everything it ever reached, and those that once
 * broke something.
 */
class tst_RyToolBarManager_findings : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everySeedKeepsWhatMustHold();
    void everyFindingKeepsWhatMustHold();
    void anInputChoosesWhatIsBeforeItsState();

protected:
    void finish() override { forgetHosts(); }

private:
    void replay(const QFileInfoList &files);

    ResidentGauge m_gauge;
};

void tst_RyToolBarManager_findings::everySeedKeepsWhatMustHold()
{
    const QFileInfoList seeds = inputsIn("seeds");
    QVERIFY(seeds.size() > 100);
    replay(seeds);
}

void tst_RyToolBarManager_findings::everyFindingKeepsWhatMustHold()
{
    replay(inputsIn("findings"));
}

void tst_RyToolBarManager_findings::anInputChoosesWhatIsBeforeItsState()
{
    const QByteArray beginning = QByteArray::fromHex("000000ff 00000003 fe");
    QCOMPARE(stateOfInput(QByteArray()), QByteArray());
    QCOMPARE(stateOfInput("\x07\xff"), QByteArray("\xff"));
    QCOMPARE(stateOfInput("\x0f\xff"), QByteArray(beginning + '\xff'));
    QCOMPARE(stateOfInput("\xf8"), beginning);
}

void tst_RyToolBarManager_findings::replay(const QFileInfoList &files)
{
    for (const QFileInfo &info : files) {
        QFile file(info.filePath());
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(info.filePath()));
        const QString breach = breachOf(file.readAll(), &m_gauge);
        QVERIFY2(breach.isEmpty(), qPrintable(info.fileName() + ": " + breach));
    }
}

QTEST_MAIN(tst_RyToolBarManager_findings)

#include "tst_rytoolbarmanager_findings.moc"
