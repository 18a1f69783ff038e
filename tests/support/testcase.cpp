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
    return text.startsWith(QLatin1String("This plugin does not support"))
        || (text.startsWith(QLatin1String("QXcbConnection: XCB error: 3 (BadWindow)"))
            && text.contains(QLatin1String("(TranslateCoords)")));
}

void recordMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtDebugMsg || type == QtInfoMsg || isOfPlatform(text)) {
        previousHandler(type, context, text);
        return;
    }
    const QString source = QStringLiteral("%1:%2 %3")
                               .arg(QLatin1String(context.file), QString::number(context.line),
                                    QLatin1String(context.function));
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
        descriptions << QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ')
                + widget->objectName();
    return descriptions.join(QLatin1String(", "));
}

} // namespace

QStringList TestCase::takeWarnings()
{
    QStringList texts;
    for (const Warning &warning : qAsConst(warnings))
        texts << warning.text;
    warnings.clear();
    return texts;
}

QStringList TestCase::takeLocatedWarnings()
{
    QStringList texts;
    for (const Warning &warning : qAsConst(warnings))
        texts << warning.source + QLatin1Char(' ') + warning.text;
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
    QVERIFY2(unexpected.isEmpty(),
             qPrintable(QLatin1String("unexpected: ") + unexpected.join(QLatin1Char('\n'))));
    QVERIFY2(left.isEmpty(), qPrintable(QLatin1String("left behind: ") + describe(left)));
}

void TestCase::prepare()
{
}

void TestCase::finish()
{
}
