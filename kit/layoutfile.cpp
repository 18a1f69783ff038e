// SPDX-License-Identifier: MIT

#include "layoutfile.h"

#include "toolbarplaces.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSaveFile>
#include <QScreen>

#include <algorithm>

namespace {

const int LargestFile = 1000000; // bytes
const int MostCustomToolBars = 100;
const int MostEntriesOfFile = 5000;
const int MostPlacedToolBars = 1000;
const int LongestTitle = 200;

// Why a layout is not for a window, or an empty string.
QString refusal(const KitLayout &layout)
{
    int customToolBars = 0;
    int entries = 0;
    for (auto it = layout.toolBars.cbegin(); it != layout.toolBars.cend(); ++it) {
        entries += int(it->entries.size());
        if (!it->custom)
            continue;
        ++customToolBars;
        // It becomes an objectName, by which the program may find something else.
        if (!it.key().startsWith(QLatin1String("_Custom_Toolbar_")))
            return QStringLiteral("the layout has a custom toolbar with a name of another kind");
    }
    if (customToolBars > MostCustomToolBars || entries > MostEntriesOfFile
        || ToolBarPlaces::toolBarsOf(layout.places).size() > MostPlacedToolBars)
        return QStringLiteral("the layout has too many toolbars or entries");
    return QString();
}

bool isOnScreen(const QPoint &position)
{
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.cbegin(), screens.cend(), [&position](const QScreen *screen) {
        return screen->availableGeometry().contains(position);
    });
}

} // namespace

LayoutFile::LayoutFile(const QString &name)
    : m_name(name)
{
}

bool LayoutFile::write(const QByteArray &value) const
{
    QSaveFile file(m_name);
    return file.open(QIODevice::WriteOnly) && file.write(value) == value.size() && file.commit();
}

KitLayout LayoutFile::read(QString *reason) const
{
    QFile file(m_name);
    // Anything else might never end.
    if (!QFileInfo(m_name).isFile() || !file.open(QIODevice::ReadOnly)) {
        *reason = QStringLiteral("the file cannot be read");
        return KitLayout();
    }
    KitLayout layout = KitLayout::fromJson(file.read(LargestFile + 1), reason);
    if (reason->isEmpty())
        *reason = refusal(layout);
    if (!reason->isEmpty())
        return KitLayout();
    for (KitToolBar &toolBar : layout.toolBars)
        toolBar.title.truncate(LongestTitle);
    const QMap<QString, QPoint> floating = layout.places.floating;
    for (auto it = floating.cbegin(); it != floating.cend(); ++it) {
        if (!isOnScreen(it.value()))
            layout.places.floating.remove(it.key());
    }
    return layout;
}
