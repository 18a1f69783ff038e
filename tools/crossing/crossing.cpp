// SPDX-License-Identifier: MIT

/*
 * crossing save FILE      writes every state into a file of QSettings, under its name
 * crossing restore FILE   restores them, and prints what has become of each
 *
 * Fails if a whole state is not restored to what was saved, or is saved again as other bytes. What
 * becomes of damaged states is to be compared with the output of the other Qt.
 */

#include "layoutstates.h"
#include "windowstates.h"

#include <QApplication>
#include <QSettings>

#include <iostream>

namespace {

const int MaximumPrinted = 5;

bool save(const QString &fileName)
{
    QSettings file(fileName, QSettings::IniFormat);
    const QList<SavedState> states = layoutStates() + windowStates();
    for (const SavedState &state : states)
        file.setValue(state.name, state.bytes);
    file.sync();
    return file.status() == QSettings::NoError;
}

// Returns false if a whole state has become something else.
bool restore(const QString &fileName)
{
    const QSettings file(fileName, QSettings::IniFormat);
    const QStringList names = file.allKeys();
    int wrong = 0;
    for (const QString &name : names) {
        const SavedState state{name, file.value(name).toByteArray()};
        const Restored restored = isWindowState(name) ? restoreWindow(state) : restoreLayout(state);
        std::cout << qPrintable(name) << '\n' << restored.described.constData() << '\n';
        if (!restored.error.isEmpty() && ++wrong <= MaximumPrinted)
            std::cerr << qPrintable(name) << ": " << qPrintable(restored.error) << '\n';
    }
    std::cerr << names.size() << " states were restored with Qt " << qVersion() << ", " << wrong
              << " of them wrong\n";
    return wrong == 0 && !names.isEmpty();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    recordWarnings();
    const QStringList arguments = application.arguments();
    if (arguments.size() == 3 && arguments.at(1) == "save")
        return save(arguments.at(2)) ? 0 : 1;
    if (arguments.size() == 3 && arguments.at(1) == "restore")
        return restore(arguments.at(2)) ? 0 : 1;
    std::cerr << "usage: crossing save FILE | crossing restore FILE\n";
    return 2;
}
