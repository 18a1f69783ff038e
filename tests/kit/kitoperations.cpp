// SPDX-License-Identifier: MIT

#include "editsequence.h"
#include "kitsequence.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QProxyStyle>
#include <QtDebug>

/*
 * usage: kitoperations [--edits] [--sequences N] [--steps N] [--first-seed N]
 *
 * Random sequences of what programs and users do with a kit, or of a user's edits in the dialog,
 * compared with a simple model after every step. Prints the steps of the first sequence that
 * differs, and fails.
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

template <class Sequence> bool passes(uint seed, int steps)
{
    Sequence sequence(seed);
    if (sequence.run(steps))
        return true;
    qWarning("Seed %u:", seed);
    for (const QString &line : sequence.log())
        qWarning("  %s", qPrintable(line));
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    previousHandler = qInstallMessageHandler(printOthers);
    QApplication application(argc, argv);
    QApplication::setStyle(new StyleWithoutIcons);
    QApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    parser.addOptions({{"edits", ""},
                       {"sequences", "", "N", "100"},
                       {"steps", "", "N", "40"},
                       {"first-seed", "", "N", "1"}});
    parser.process(application);
    const uint first = parser.value("first-seed").toUInt();
    const uint count = parser.value("sequences").toUInt();
    const int steps = parser.value("steps").toInt();
    const auto passesOne = parser.isSet("edits") ? passes<EditSequence> : passes<KitSequence>;
    for (uint seed = first; seed < first + count; ++seed) {
        if (!passesOne(seed, steps))
            return 1;
    }
    qInfo("%u sequences, no difference", count);
    return 0;
}
