// SPDX-License-Identifier: MIT

#include "testcase.h"

#include <QApplication>
#include <QtTest>

namespace {

struct Warning
{
    QString text;
    QString source;
};

QList<Warning> warnings;
QtMessageHandler previousHandler = nullptr;

// What the platform without a display says of itself, and what Qt says on an X server where a frame
// of the window manager went while Qt looked for the window below the pointer.
bool isOfPlatform(const QString &text)
{
    return text.startsWith("This plugin does not support")
        || (text.startsWith("QXcbConnection: XCB error: 3 (BadWindow)")
            && text.contains("(TranslateCoords)"));
}

void recordMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtDebugMsg || type == QtInfoMsg || isOfPlatform(text)) {
        previousHandler(type, context, text);
        return;
    }
    const QString source =
        QString("%1:%2 %3").arg(context.file, QString::number(context.line), context.function);
    warnings.append({text, source});
}

QSet<QWidget *> topLevels()
{
    QSet<QWidget *> widgets;
    const auto all = QApplication::topLevelWidgets();
    for (QWidget *widget : all)
        widgets.insert(widget);
    return widgets;
}

QString describe(const QSet<QWidget *> &widgets)
{
    QStringList descriptions;
    for (QWidget *widget : widgets)
        descriptions << QString(widget->metaObject()->className()) + ' ' + widget->objectName();
    return descriptions.join(", ");
}

} // namespace

QStringList TestCase::takeWarnings()
{
    QStringList texts;
    for (const Warning &warning : std::as_const(warnings))
        texts << warning.text;
    warnings.clear();
    return texts;
}

QStringList TestCase::takeLocatedWarnings()
{
    QStringList texts;
    for (const Warning &warning : std::as_const(warnings))
        texts << warning.source + ' ' + warning.text;
    warnings.clear();
    return texts;
}

void TestCase::init()
{
    m_topLevels = topLevels();
    warnings.clear();
    previousHandler = qInstallMessageHandler(recordMessage);
    prepare();
}

void TestCase::cleanup()
{
    finish();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    qInstallMessageHandler(previousHandler);
    const QStringList unexpected = takeWarnings();
    const QSet<QWidget *> left = topLevels() - m_topLevels;
    QVERIFY2(unexpected.isEmpty(), qPrintable("unexpected: " + unexpected.join('\n')));
    QVERIFY2(left.isEmpty(), qPrintable("left behind: " + describe(left)));
}

void TestCase::prepare()
{
}

void TestCase::finish()
{
}
