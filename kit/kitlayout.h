// SPDX-License-Identifier: MIT

#ifndef KITLAYOUT_H
#define KITLAYOUT_H

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QMap>
#include <QPoint>
#include <QStringList>

/*!
 * \brief Where toolbars are: their names, line by line in each area, and the floating ones.
 */
struct KitPlaces
{
    bool isEmpty() const { return lines.isEmpty() && floating.isEmpty(); }

    // By the name of the area: "left", "right", "top" or "bottom".
    QMap<QString, QList<QStringList>> lines;
    // The position on the screen of each floating toolbar; those are in a line too.
    QMap<QString, QPoint> floating;
};

bool operator==(const KitPlaces &a, const KitPlaces &b);

/*!
 * \brief How the user wants the buttons of a toolbar to look, and what the program had then.
 */
struct KitLook
{
    bool isDefault() const { return iconSize == 0 && textPosition.isEmpty(); }

    // In pixels; 0 if it is as the program has it.
    int iconSize = 0;
    // 0 if it was that of the style.
    int iconSizeByProgram = 0;
    // "icons", "text", "beside" or "under"; empty if it is as the program has it.
    QString textPosition;
    // One of those, or "style".
    QString textPositionByProgram;
};

bool operator==(const KitLook &a, const KitLook &b);

/*!
 * \brief What the user has made of one toolbar.
 */
struct KitToolBar
{
    enum Visibility { AsProgrammed, Shown, Hidden };

    bool isDefault() const
    {
        return !custom && !customized && visibility == AsProgrammed && look.isDefault();
    }

    // The title of a custom toolbar.
    QString title;
    bool custom = false;
    // False if the content is the default content; there are no entries then.
    bool customized = false;
    // The names of the actions; a null string is a separator.
    QStringList entries;
    // Each default action that a release had when the entries were stored.
    QStringList known;
    Visibility visibility = AsProgrammed;
    // What the program had chosen when the user chose the visibility.
    bool shownByProgram = true;
    KitLook look;
    // Keys of a later version.
    QJsonObject others;
};

bool operator==(const KitToolBar &a, const KitToolBar &b);

/*!
 * \brief A layout as data. kit/README.md describes the value that it is stored as.
 */
class KitLayout
{
public:
    /*!
     * \brief Returns true if nothing is customized.
     */
    bool isDefault() const;

    /*!
     * \brief Returns the value, with a checksum, as text in UTF-8.
     */
    QByteArray toJson() const;

    /*!
     * \brief Returns the layout of a value.
     *
     * \param reason is set to why the value is refused, or to an empty string. The result is the
     *        default layout in the first case.
     */
    static KitLayout fromJson(const QByteArray &json, QString *reason);

    /*!
     * \brief Returns what shows whether compact JSON is damaged.
     */
    static QByteArray checksum(const QByteArray &json);

    // By name.
    QMap<QString, KitToolBar> toolBars;
    // Empty if the toolbars are where the program has them.
    KitPlaces places;
    // Whether the user has made all toolbars immovable.
    bool locked = false;

private:
    QByteArray layoutJson() const;
    void read(const QJsonObject &object);

    struct Written
    {
        KitToolBar toolBar;
        QMap<QString, QByteArray> member;
    };
    // What layoutJson() has made of the toolbars, of which few change in between.
    mutable QHash<QString, Written> m_written;
    // The keys of the toolbars that it wrote last, and in which order.
    mutable QStringList m_keys;
    mutable QStringList m_sortedKeys;
    // Keys of a later version, in the value and in its layout.
    QJsonObject m_others;
    QJsonObject m_layoutOthers;
};

#endif // KITLAYOUT_H
