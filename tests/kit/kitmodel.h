// SPDX-License-Identifier: MIT

#ifndef KITMODEL_H
#define KITMODEL_H

#include <QMap>
#include <QSet>
#include <QStringList>

/*
 * What a program and its user may expect of the kit, as simple as possible: lists of names,
 * searched from the front. A separator is "|".
 */
class KitModel
{
public:
    struct ToolBar
    {
        bool isDefault() const
        {
            return !custom && !customized && !hidden && iconSize == 0 && textPosition.isEmpty();
        }

        QString title; // of custom ones only
        bool custom = false;
        bool customized = false;
        QStringList entries;
        QStringList known;
        bool hidden = false; // by the user
        int iconSize = 0; // chosen by the user
        QString textPosition;
    };
    struct Layout : QMap<QString, ToolBar>
    {
        bool locked = false;
    };

    // What the user can undo: the toolbars that a step changed, as they were.
    struct Step
    {
        Layout toolBars;
        // Where all toolbars were, or empty if they were not moved.
        QStringList places;
    };
    struct Steps
    {
        QList<Step> undo;
        QList<Step> redo;
    };

    // What a release or a set of plugins has.
    struct Release
    {
        QSet<QString> actions;
        QMap<QString, QStringList> toolBars;
        // The action that returns at the next start.
        QString required;
        // The former name of each action and toolbar that had another one.
        QMap<QString, QString> formerNames;
    };

    // The program starts with what is stored.
    void start(const Release &release, const Layout &stored, const Steps &steps);
    // The program has other actions or toolbars from now on.
    void change(const Release &release);
    // Another window has a layout that this one follows.
    void takeOver(const Layout &layout, const Steps &steps);
    // The user takes a layout that was saved. The required action returns if it is still there.
    void restore(const Layout &layout, bool isRequiredThere);

    void edit(const QString &toolBar, const QStringList &content);
    void create(const QString &toolBar, const QString &title, const QStringList &content);
    void remove(const QString &toolBar);
    void restoreDefaults();
    void hide(const QString &toolBar, bool hidden);
    void chooseIconSize(const QString &toolBar, int size);
    void chooseTextPosition(const QString &toolBar, const QString &position);
    void lock(bool locked);
    void reset(const QString &toolBar);

    // What the user has done since the last step is a step.
    void record(const QStringList &places);
    // The next step begins now.
    void beginStep(const QStringList &places);
    void undo(const QStringList &places) { exchange(&m_steps.undo, &m_steps.redo, places); }
    void redo(const QStringList &places) { exchange(&m_steps.redo, &m_steps.undo, places); }

    // What is on the toolbar now.
    QStringList content(const QString &toolBar) const;
    // Those that are in the window now.
    QStringList toolBars() const;
    bool isCustom(const QString &toolBar) const { return m_layout.value(toolBar).custom; }
    bool isHidden(const QString &toolBar) const { return m_layout.value(toolBar).hidden; }
    bool isLocked() const { return m_layout.locked; }
    int iconSize(const QString &toolBar) const { return m_layout.value(toolBar).iconSize; }
    QString textPosition(const QString &toolBar) const
    {
        return m_layout.value(toolBar).textPosition;
    }
    bool isDefaultOn(const QString &toolBar, const QString &action) const
    {
        return m_defaults.value(toolBar).contains(action);
    }
    QString title(const QString &toolBar) const { return m_layout.value(toolBar).title; }
    bool isDefault() const;
    const Release &release() const { return m_release; }
    const Layout &layout() const { return m_layout; }
    const Steps &steps() const { return m_steps; }

private:
    void exchange(QList<Step> *from, QList<Step> *to, const QStringList &places);
    void show(const Layout &layout);
    QStringList entries(const QString &toolBar) const;
    void set(const QString &toolBar, const QStringList &entries);
    void followFormerNames();
    void renameToolBar(const QString &before, const QString &now);
    void renameAction(const QString &before, const QString &now);
    void takeNewDefaults();
    void bringBackRequired();

    Release m_release;
    // The default contents of this run, with the names of what has gone since.
    QMap<QString, QStringList> m_defaults;
    Layout m_layout;
    Steps m_steps;
    // What the next step begins with.
    Layout m_base;
    QStringList m_basePlaces;
};

bool operator==(const KitModel::ToolBar &a, const KitModel::ToolBar &b);

#endif // KITMODEL_H
