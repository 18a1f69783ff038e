// SPDX-License-Identifier: MIT

#ifndef DIALOGPANES_H
#define DIALOGPANES_H

#include "dialogparts.h"

#include <QObject>
#include <QStringList>

class LayoutStore;
class QSplitter;

/*!
 * \brief Lets the user divide the dialog among its views, and keeps that and its size.
 */
class DialogPanes : public QObject
{
    Q_OBJECT

public:
    /*!
     * \param store where the sizes are kept; it must outlive the dialog.
     * \param isWritten whether sizes are written to the store, not only read.
     */
    DialogPanes(const DialogParts &parts, LayoutStore *store, bool isWritten);

private Q_SLOTS:
    void store();

private:
    void divide();
    void restore();

    const DialogParts m_parts;
    LayoutStore *m_store;
    // The actions beside the toolbars.
    QSplitter *m_sides;
    // The toolbars above the current one.
    QSplitter *m_lists;
};

#endif // DIALOGPANES_H
