// SPDX-License-Identifier: MIT

#include "layoutstates.h"

#include "goldenlayout.h"
#include "randomlayout.h"
#include "savedlayout.h"
#include "toolbarlines.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace {

const int RandomLayouts = 2000;
const QString GoldenDir = QString::fromUtf8(RY_GOLDEN_DIR);
const QString Golden = "golden-";
const QString Damaged = "-damaged-";

QStringList warnings;

void recordWarning(QtMsgType, const QMessageLogContext &, const QString &text)
{
    warnings << text;
}

// The names in warnings are in the local encoding. For half a pair of surrogates, that has a
// question mark in Qt 5, or nothing at the end of a name, and a replacement character in Qt 6.
QStringList withoutHalfPairs(QStringList texts)
{
    return texts.replaceInStrings(QString(QChar::ReplacementCharacter), "")
        .replaceInStrings("?", "");
}

QString goldenText(const QString &name)
{
    QFile file(GoldenDir + '/' + name + ".txt");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

GoldenLayout layoutNamed(const QString &name)
{
    const QString whole = name.section(Damaged, 0, 0);
    return GoldenLayout(whole.startsWith(Golden) ? goldenText(whole.mid(Golden.size()))
                                                 : randomLayout(whole.toUInt()));
}

// The custom toolbars are there already, so that the order of all addresses is known.
std::unique_ptr<Host> hostOf(const GoldenLayout &layout)
{
    auto host = layout.host();
    layout.addCustomToolBars(*host);
    return host;
}

QStringList layoutNames()
{
    QStringList names;
    const auto files = QDir(GoldenDir).entryInfoList({"*.txt"}, QDir::Files, QDir::Name);
    for (const QFileInfo &file : files)
        names << Golden + file.completeBaseName();
    for (int seed = 1; seed <= RandomLayouts; ++seed)
        names << QString::number(seed);
    return names;
}

bool isBefore(const SavedLayout::ToolBar &a, const SavedLayout::ToolBar &b)
{
    return a.objectName < b.objectName;
}

// A damaged state can create toolbars, whose addresses give them any place.
QByteArray withSortedToolBars(const QByteArray &state)
{
    SavedLayout layout = SavedLayout::of(state);
    std::stable_sort(layout.customs.begin(), layout.customs.end(), isBefore);
    return layout.bytes();
}

QString errorOf(const GoldenLayout &layout, const Host &host, bool result)
{
    if (!layout.error().isEmpty())
        return "the layout is not understood: " + layout.error();
    if (!result)
        return "the state was refused";
    const QStringList found = GoldenLayout::linesOf(host);
    if (found != layout.lines())
        return "the toolbars are\n" + found.join('\n') + "\nand not\n" + layout.lines().join('\n');
    return QString();
}

} // namespace

void recordWarnings()
{
    qInstallMessageHandler(recordWarning);
}

QList<SavedState> layoutStates()
{
    QList<SavedState> states;
    unsigned seed = 0;
    const QStringList names = layoutNames();
    for (const QString &name : names) {
        const GoldenLayout layout = layoutNamed(name);
        const auto host = hostOf(layout);
        layout.apply(*host);
        const QByteArray bytes = host->manager.saveState(layout.version());
        states << SavedState{name, bytes};
        for (int i = name.startsWith(Golden) ? 20 : 1; i > 0; --i)
            states << SavedState{name + Damaged + QString::number(i), damaged(bytes, ++seed)};
    }
    return states;
}

Restored restoreLayout(const SavedState &state)
{
    Restored restored;
    const GoldenLayout layout = layoutNamed(state.name);
    const auto host = hostOf(layout);
    warnings.clear();
    const bool result = host->manager.restoreState(state.bytes, layout.version());
    QStringList said{result ? "restored" : "refused"};
    said << withoutHalfPairs(warnings) << lines(host->manager);

    QByteArray again = host->manager.saveState(layout.version());
    if (state.name.contains(Damaged)) {
        again = withSortedToolBars(again);
    } else {
        restored.error = errorOf(layout, *host, result);
        if (restored.error.isEmpty() && again != state.bytes)
            restored.error = "it is saved again as other bytes";
    }
    restored.described = said.join('\n').toUtf8() + '\n' + again.toHex();
    return restored;
}
