// SPDX-License-Identifier: MIT

#ifndef KITSEQUENCE_H
#define KITSEQUENCE_H

#include "comparedwindow.h"

#include <QRandomGenerator>

/*
 * A random sequence of what a program and its user do with its windows.
 */
class KitSequence
{
public:
    explicit KitSequence(quint32 seed);

    // Whether the windows and their models agree after each step.
    bool run(int steps);

    const QStringList &log() const { return m_log; }

private:
    using Step = void (KitSequence::*)();

    // What a user does in a window
    void customize();
    void customizeMore(RyToolBarManager *manager);
    void restoreDefaults();
    void hideOrShow();
    void move();
    void useMenu();
    void undoOrRedo();
    void saveProfile();
    void switchToProfile();

    // What a program does
    void hideForAWhile();
    void restart();
    void startOtherRelease();
    void rename();
    void loseOrRegain();
    void loadOrUnloadToolBar();
    void loadOrUnloadMenu();
    void changeWithTheDialogOpen();
    void exchange();
    void damage();
    void openOrCloseOther();

    KitModel::Release randomRelease();
    QStringList randomContent(const QStringList &names);
    QString pick(const QStringList &names);
    // Names that the release has, or can have.
    QStringList actions() const;
    QString pickPlugin(const QStringList &names, const QStringList &present);

    void begin(const KitModel::Release &release);
    void end();
    // Reports a difference, if the places are known.
    void comparePlaces(const QStringList &places);
    void change(const KitModel::Release &release);
    void choose();
    void record(ComparedWindow *window);
    void applied();
    void share();
    void keepTrackOfStored();
    void keepTrackOfSteps(const ComparedWindow *window);
    QStringList placesOf(const ComparedWindow *window) const;
    void beginPlaces();
    bool agree();

    QRandomGenerator m_random;
    QList<KitModel::Release> m_releases;
    KitModel::Release m_release;

    // The window that is always there, and those that come and go: one with the same key, and one
    // with a key of its own.
    ComparedWindow m_main;
    ComparedWindow m_follower;
    ComparedWindow m_stranger;
    const QList<ComparedWindow *> m_windows;
    // The one in which something is done.
    ComparedWindow *m_window;

    // What is in the settings for each key, as text and as a layout.
    QMap<QString, QString> m_storedText;
    QMap<QString, KitModel::Layout> m_stored;
    // The steps in the settings for each key, in the same two ways.
    QMap<QString, QString> m_storedStepsText;
    QMap<QString, KitModel::Steps> m_storedSteps;
    // The profiles for each key.
    QMap<QString, QMap<QString, KitModel::Layout>> m_profiles;
    QStringList m_log;
    QString m_problem;
    // Whether the value of the main window is refused.
    bool m_isDamaged = false;
    // What something was renamed to.
    QSet<QString> m_namesSince;
    // Whether the program had other toolbars or another window since it was started.
    bool m_isChanged = false;
    // Where the toolbars are if not.
    QStringList m_places;
    // Places are compared only with those since the program changed last.
    int m_changes = 0;
};

#endif // KITSEQUENCE_H
