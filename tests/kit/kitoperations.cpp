// SPDX-License-Identifier: MIT

#include "kitsequence.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QProxyStyle>
#include <QtDebug>

/*
 * usage: kitoperations [--sequences N] [--steps N] [--first-seed N]
 *
 * Random sequences of what programs and users do with a kit, compared with a simple model after
 * every step. Prints the steps of the first sequence that differs, and fails.
 */

namespace {

// Nothing is drawn, but each toolbar reads icons of the style.
class StyleWithoutIcons : public QProxyStyle
{
public:
    QIcon standardIcon(StandardPixmap, const QStyleOption *, const QWidget *) const override
    {
        return QIcon();
    }
};

QtMessageHandler previousHandler = nullptr;

// The platform without a display says often what it cannot do.
void printOthers(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.startsWith("This plugin does not support"))
        previousHandler(type, context, text);
}

} // namespace

int main(int argc, char *argv[])
{
    previousHandler = qInstallMessageHandler(printOthers);
    QApplication application(argc, argv);
    QApplication::setStyle(new StyleWithoutIcons);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    parser.addOptions(
        {{"sequences", "", "N", "100"}, {"steps", "", "N", "40"}, {"first-seed", "", "N", "1"}});
    parser.process(application);
    const uint first = parser.value("first-seed").toUInt();
    const uint count = parser.value("sequences").toUInt();
    for (uint seed = first; seed < first + count; ++seed) {
        KitSequence sequence(seed);
        if (sequence.run(parser.value("steps").toInt()))
            continue;
        qWarning("Seed %u:", seed);
        for (const QString &line : sequence.log())
            qWarning("  %s", qPrintable(line));
        return 1;
    }
    qInfo("%u sequences, no difference", count);
    return 0;
}
