// SPDX-License-Identifier: MIT

#ifndef USERSCRIPT_H
#define USERSCRIPT_H

#include "realinput.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QSet>
#include <QTimer>

#include <functional>

class QWidget;

/*
 * What a user does, step by step, with the real pointer and keyboard. Each step waits for what Qt
 * makes of it before the next begins. The steps are taken from a timer, so that they go on inside a
 * drag or a modal dialog, whose event loop runs below the one that started it.
 */
class UserScript : public QObject
{
    Q_OBJECT

public:
    UserScript();
    ~UserScript() override;

    // Steps of the test's own: one with all, one that only waits and one that only acts.
    void step(const QString &name, const std::function<void()> &action,
              const std::function<bool()> &done);
    void waitFor(const QString &name, const std::function<bool()> &done);
    void act(const std::function<void()> &action);

    // Moves the pointer to a place in a widget, and waits until a window of ours has the pointer,
    // or what it drags, exactly there. The place is worked out when the step's turn has come.
    void moveTo(const std::function<QWidget *()> &widget, const std::function<QPoint()> &place);
    void moveTo(QWidget *widget, const QPoint &place);

    // Buttons and keys, each waiting until Qt has it so.
    void press(Qt::MouseButton button = Qt::LeftButton);
    void release(Qt::MouseButton button = Qt::LeftButton);
    void pressKey(Qt::Key key);
    void releaseKey(Qt::Key key);

    // All of a click in the middle of a widget.
    void click(QWidget *widget);

    // At once, for what follows closes a window or takes long; waits for what the test names.
    void doubleClick(const std::function<bool()> &done);
    void clickKey(Qt::Key key, const std::function<bool()> &done);
    void type(const QString &text, const std::function<bool()> &done);

    // Waits until a window is active and is where Qt believes it to be.
    void waitForWindow(QWidget *window);

    // Inside a drag, which takes all input for itself: moves off our windows, and two ways to end
    // it, which wait until every drag has ended.
    void dragOut();
    void drop(Qt::MouseButton button = Qt::LeftButton);
    void cancelDrag();

    // Takes the steps, each once: run(), or start(), what blocks, and finish(). The texts say
    // which step was never done, and are empty if all were.
    void start();
    QString finish();
    QString run();

    RealInput input;

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private Q_SLOTS:
    void advance();

private:
    struct Step
    {
        QString name;
        std::function<void()> action;
        std::function<bool()> done;
    };

    void moveBeside(const std::function<QWidget *()> &widget,
                    const std::function<QPoint()> &target);
    void movePointer(const QPoint &position);
    bool inNestedLoop() const;
    void giveUp();
    void end();

    QList<Step> m_steps;
    // The index of the step in progress, -1 before the first.
    int m_index;
    QTimer m_timer;
    QEventLoop m_loop;
    QElapsedTimer m_since;
    QString m_failure;
    // How deep the event loop of the test itself is; below it runs a drag or a modal dialog.
    int m_loopLevel;
    // Whether a step so far moves the pointer.
    bool m_hasMoved;
    // Where a window of ours had the pointer, or what it drags, since the last step that moves it.
    QPoint m_pointer;
    // The keys that our windows know to be held.
    QSet<int> m_heldKeys;
};

// The same outside of a script.
bool waitUntilSettled(QWidget *window);

#endif // USERSCRIPT_H
