// SPDX-License-Identifier: MIT

#ifndef CUTENTRIES_H
#define CUTENTRIES_H

#include "dialogparts.h"

#include <QList>
#include <QObject>
#include <QPersistentModelIndex>
#include <QStringList>

class EditorCommands;
class SelectedRows;

/*!
 * \brief Moves entries by keys: they are cut here, and inserted there, also on another toolbar.
 *
 * What is cut stays where it is until it is inserted. It is forgotten when its toolbar changes.
 */
class CutEntries : public QObject
{
    Q_OBJECT

public:
    CutEntries(const DialogParts &parts, EditorCommands *commands, const SelectedRows *selected,
               QObject *parent);

private Q_SLOTS:
    void cut();
    void insertBehindCurrent();
    void insertAtEnd();
    void forget();

private:
    void insert(int gap);
    void mark(bool isCut);
    QStringList texts() const;

    const DialogParts m_parts;
    EditorCommands *const m_commands;
    const SelectedRows *const m_selected;
    // The toolbar that something was cut on, and its entries at that time.
    QPersistentModelIndex m_toolBar;
    QStringList m_texts;
    QList<int> m_rows;
};

#endif // CUTENTRIES_H
