// SPDX-License-Identifier: MIT

#ifndef SAVEDLAYOUT_H
#define SAVEDLAYOUT_H

#include <QByteArray>
#include <QString>

#include <vector>

/*
 * A saved state as its fields, and the bytes of it, written and read without QDataStream.
 */
struct SavedLayout
{
    struct ToolBar
    {
        QString objectName; // of a default toolbar whatever it was saved under
        QString title; // of custom toolbars only
        std::vector<QString> actions; // null for a separator
    };

    int marker = 255;
    int version = 0;
    int defaultMarker = 0xFE;
    std::vector<ToolBar> defaults;
    int customMarker = 0xFD;
    std::vector<ToolBar> customs;

    QByteArray bytes() const;

    // False if the bytes end too early or too late.
    static bool read(const QByteArray &bytes, SavedLayout &layout);

    // One line for each record.
    QString text() const;

    // True if that layout has the same fields, and null wherever this one has.
    bool matches(const SavedLayout &other) const;
};

#endif // SAVEDLAYOUT_H
