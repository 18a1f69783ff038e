// SPDX-License-Identifier: MIT

#ifndef APPLY_H
#define APPLY_H

#include "dialogscene.h"
#include "sceneside.h"

class QAbstractButton;

/*
 * A click on Apply with nothing edited.
 */
class ApplySameOurs : public SceneSide<DialogScene>
{
public:
    explicit ApplySameOurs(const Size &size);

    void run() override;
    // Also lists every event of a toolbar or of the window that a click causes.
    QStringList result() override;

private:
    std::unique_ptr<QDialog> m_dialog;
    QAbstractButton *m_button;
};

/*
 * Bare Qt compares each list with the list that it would set.
 */
class ApplySameBare : public SceneSide<Scene>
{
public:
    explicit ApplySameBare(const Size &size);

    void run() override;
    QStringList result() override;

private:
    QList<QList<QAction *>> m_contents;
    QList<QList<QAction *>> m_wanted;
};

/*
 * A click on Apply that changes every entry of every toolbar, with the window shown. Before each
 * round, the host sets the other content while the dialog is open, so that all entries differ.
 */
class ApplyOtherOurs : public ApplySameOurs
{
public:
    explicit ApplyOtherOurs(const Size &size);

    void prepare() override;
    QStringList result() override;
};

/*
 * Only the work on the widgets, from the second content to the first.
 */
class ApplyOtherBare : public SceneSide<Scene>
{
public:
    explicit ApplyOtherBare(const Size &size);

    void prepare() override;
    void run() override;

private:
    QList<QList<QAction *>> m_contents[2];
};

#endif // APPLY_H
