// SPDX-License-Identifier: MIT

#ifndef SPOKENNAMES_H
#define SPOKENNAMES_H

#include "dialogparts.h"

#include <QObject>
#include <QTimer>

class DialogDressing;
class QTreeWidgetItem;

/*!
 * \brief Gives the parts of the dialog the names that screen readers say.
 *
 * The dialog owns it. Make it before captions and tool tips show keys.
 */
class SpokenNames : public QObject
{
    Q_OBJECT

public:
    SpokenNames(const DialogParts &parts, const DialogDressing *dressing);

    //! Returns what is said for a row with this text.
    static QString spoken(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void describeItems();
    void speakPlainly(QTreeWidgetItem *action);

private:
    void nameWidgets();
    void describeTree();
    void describeEntries();
    void describeToolBars();
    static void nameEditor(QObject *child);

    const DialogParts m_parts;
    // Waits for all rows: there is one signal for each.
    QTimer m_timer;
};

#endif // SPOKENNAMES_H
