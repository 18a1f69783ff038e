// SPDX-License-Identifier: MIT

#ifndef DIALOGDRESSING_H
#define DIALOGDRESSING_H

#include "dialogparts.h"
#include "restorequestion.h"
#include "rytoolbarkit.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

class ActionSearch;
class DialogEdits;
class LayoutStore;
class ReadableViews;
class RyToolBarManager;

/*!
 * \brief What the kit adds to a dialog that it opens. The dialog owns it.
 */
class DialogDressing : public QObject
{
    Q_OBJECT

public:
    struct Context
    {
        RyToolBarManager *manager;
        // Those of the menus, in the order of the menus.
        QStringList categories;
        std::function<RestoreQuestion::Defaults()> defaults;
        LayoutStore *store;
        RyToolBarKit::Features features;
    };

    DialogDressing(RyCustomizedDialog *dialog, const Context &context);

    const DialogEdits *edits() const { return m_edits; }

Q_SIGNALS:
    /*!
     * \brief Restore Defaults was pressed, and confirmed if the user is asked.
     */
    void defaultsRestored();

    /*!
     * \brief The dialog shows what the manager has.
     */
    void filled();

private Q_SLOTS:
    void dressRows();
    void forgetRows();

private:
    void protectEdits(const Context &context);
    void followRestoreDefaults();

    const DialogParts m_parts;
    const QPointer<RyToolBarManager> m_manager;
    DialogEdits *m_edits;
    // Each is null without its feature.
    ReadableViews *m_readableViews;
    ActionSearch *m_actionSearch;
    bool m_isFilled;
};

#endif // DIALOGDRESSING_H
