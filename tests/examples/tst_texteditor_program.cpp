// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "testcase.h"

#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

/*
 * The program as it is started from a command line.
 */
class tst_TextEditorProgram : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void argumentsAreRead_data();
    void argumentsAreRead();
    void helpAndVersionAreWritten_data();
    void helpAndVersionAreWritten();
    void wrongArgumentsEndTheProgram_data();
    void wrongArgumentsEndTheProgram();
    void resetLayoutForgetsTheStoredLayout();
    void theDocumentIsOpened();

private:
    QTemporaryDir m_folder;
};

namespace {

const QString Program = TEXTEDITOR_PROGRAM;

// A program that is ended when the test is.
class Running
{
public:
    explicit Running(const QStringList &arguments)
    {
        process.start(Program, arguments);
        started = process.waitForStarted();
    }
    ~Running()
    {
        process.kill();
        process.waitForFinished();
    }

    QProcess process;
    bool started = false;
};

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void tst_TextEditorProgram::argumentsAreRead_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("isRight");
    QTest::addColumn<QString>("settings");
    QTest::addColumn<bool>("reset");
    QTest::addColumn<QString>("document");
    const QString a = "a.txt";
    const QString ini = "s.ini";
    const QString settings = "--settings";
    const QString reset = "--reset-layout";
    QTest::newRow("none") << QStringList() << true << QString() << false << QString();
    QTest::newRow("document") << QStringList{a} << true << QString() << false << a;
    QTest::newRow("all") << QStringList{settings, ini, reset, a} << true << ini << true << a;
    QTest::newRow("profiles") << QStringList{"--profiles"} << true << QString() << false
                              << QString();
    QTest::newRow("document first") << QStringList{a, reset} << true << QString() << true << a;
    QTest::newRow("settings with equals sign")
        << QStringList{settings + "=s.ini"} << true << ini << false << QString();
    QTest::newRow("settings without file")
        << QStringList{settings} << false << QString() << false << QString();
    QTest::newRow("unknown option")
        << QStringList{"--print"} << false << QString() << false << QString();
    QTest::newRow("two documents") << QStringList{a, ini} << false << QString() << false << a;
}

void tst_TextEditorProgram::argumentsAreRead()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, isRight);
    QFETCH(QString, settings);
    QFETCH(bool, reset);
    QFETCH(QString, document);
    CommandLine commandLine;
    QCOMPARE(commandLine.parse(QStringList{"texteditor"} + arguments), isRight);
    QCOMPARE(commandLine.settingsFile(), settings);
    QCOMPARE(commandLine.resetLayout(), reset);
    QCOMPARE(commandLine.profiles(), arguments.contains("--profiles"));
    QCOMPARE(commandLine.document(), document);
}

void tst_TextEditorProgram::helpAndVersionAreWritten_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("help") << "--help"
                          << QStringList{"--settings <file>", "--reset-layout", "--profiles",
                                         "[file]"};
    QTest::newRow("version") << "--version" << QStringList{"Text Editor 1.0.0"};
}

void tst_TextEditorProgram::helpAndVersionAreWritten()
{
    QFETCH(QString, argument);
    QFETCH(QStringList, expected);
    Running program({argument});
    QVERIFY(program.started);
    QVERIFY(program.process.waitForFinished());
    QCOMPARE(program.process.exitCode(), 0);
    const QString written = QString::fromUtf8(program.process.readAllStandardOutput());
    for (const QString &text : std::as_const(expected))
        QVERIFY2(written.contains(text), qPrintable(written));
}

void tst_TextEditorProgram::wrongArgumentsEndTheProgram_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown option") << QStringList{"--print"};
    QTest::newRow("two documents") << QStringList{"a", "b"};
}

void tst_TextEditorProgram::wrongArgumentsEndTheProgram()
{
    QFETCH(QStringList, arguments);
    Running program(arguments);
    QVERIFY(program.started);
    QVERIFY(program.process.waitForFinished());
    QCOMPARE(program.process.exitCode(), 1);
}

void tst_TextEditorProgram::resetLayoutForgetsTheStoredLayout()
{
    const QString settings = m_folder.filePath("reset.ini");
    QFile file(settings);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[layout]\ntoolBars=x\n\n[view]\nwordWrap=false\n");
    file.close();
    Running program({"--settings", settings, "--reset-layout"});
    QVERIFY(program.started);
    QTRY_VERIFY(!contentOf(settings).contains("[layout]"));
    QVERIFY(contentOf(settings).contains("wordWrap=false"));
}

void tst_TextEditorProgram::theDocumentIsOpened()
{
    const QString settings = m_folder.filePath("open.ini");
    const QString document = m_folder.filePath("document.txt");
    QFile file(document);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    Running program({"--settings", settings, document});
    QVERIFY(program.started);
    QTRY_VERIFY(contentOf(settings).contains("document.txt"));
}

QTEST_MAIN(tst_TextEditorProgram)

#include "tst_texteditor_program.moc"
