// SPDX-License-Identifier: MIT

#include "userscript.h"

#include "qtdifferences.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QThread>
#include <QtTest>

namespace {

// Far beyond what a busy machine needs, and short enough to see which step it was.
constexpr int patience = 20000;

// Places of the pointer that are none on the screen.
const QPoint outside(-1, -1);
const QPoint unknown(-2, -2);

bool isSettled(const QWidget *window, const RealInput &input)
{
    const QWindow *const handle = window->windowHandle();
    // Not QWindow::isActive(), for which a dialog of the active window is active too.
    return handle && handle->isExposed() && QGuiApplication::focusWindow() == handle
        && QApplication::activeWindow() == window
        && handle->mapToGlobal(QPoint()) == input.positionOf(handle);
}

} // namespace

UserScript::UserScript()
    : m_index(-1)
    , m_loopLevel(0)
    , m_hasMoved(false)
{
    qApp->installEventFilter(this);
    m_timer.setInterval(1);
    connect(&m_timer, &QTimer::timeout, this, &UserScript::advance);
}

UserScript::~UserScript() = default;

void UserScript::step(const QString &name, const std::function<void()> &action,
                      const std::function<bool()> &done)
{
    m_steps.append({name, action, done});
}

void UserScript::waitFor(const QString &name, const std::function<bool()> &done)
{
    step(
        name, [] {}, done);
}

void UserScript::act(const std::function<void()> &action)
{
    step("act", action, [] { return true; });
}

void UserScript::moveTo(const std::function<QWidget *()> &widget,
                        const std::function<QPoint()> &place)
{
    const auto target = [=] { return widget()->mapToGlobal(place()); };
    if (!m_hasMoved)
        moveBeside(widget, target);
    m_hasMoved = true;
    step(
        "move", [=] { movePointer(target()); }, [=] { return m_pointer == target(); });
}

// Qt makes no move to the place where it saw the pointer last, which may be the target, before the
// pointer left for where the script starts. From beside it, it does.
void UserScript::moveBeside(const std::function<QWidget *()> &widget,
                            const std::function<QPoint()> &target)
{
    const auto beside = [=] {
        const bool isRight = target().x() > widget()->mapToGlobal(widget()->rect().center()).x();
        return target() + QPoint(isRight ? -1 : 1, 0);
    };
    step(
        "move beside", [=] { movePointer(beside()); }, [=] { return m_pointer == beside(); });
}

void UserScript::moveTo(QWidget *widget, const QPoint &place)
{
    moveTo([widget] { return widget; }, [place] { return place; });
}

void UserScript::dragOut()
{
    step(
        "drag out", [this] { input.moveTo(QPoint(0, 0)); },
        [this] { return m_pointer == outside; });
}

void UserScript::press(Qt::MouseButton button)
{
    step(
        "press", [this, button] { input.press(button); },
        [button] { return QGuiApplication::mouseButtons().testFlag(button); });
}

void UserScript::release(Qt::MouseButton button)
{
    step(
        "release", [this, button] { input.release(button); },
        [button] { return !QGuiApplication::mouseButtons().testFlag(button); });
}

void UserScript::pressKey(Qt::Key key)
{
    step(
        "press key", [this, key] { input.pressKey(key); },
        [this, key] { return m_heldKeys.contains(key); });
}

void UserScript::releaseKey(Qt::Key key)
{
    step(
        "release key", [this, key] { input.releaseKey(key); },
        [this, key] { return !m_heldKeys.contains(key); });
}

void UserScript::click(QWidget *widget)
{
    moveTo([widget] { return widget; }, [widget] { return widget->rect().center(); });
    press();
    release();
}

void UserScript::doubleClick(const std::function<bool()> &done)
{
    step(
        "double click", [this] { input.doubleClick(); }, done);
}

void UserScript::clickKey(Qt::Key key, const std::function<bool()> &done)
{
    step(
        "click key", [this, key] { input.clickKey(key); }, done);
}

void UserScript::type(const QString &text, const std::function<bool()> &done)
{
    step(
        "type " + text, [this, text] { input.type(text); }, done);
}

void UserScript::waitForWindow(QWidget *window)
{
    waitFor("window", [this, window] { return isSettled(window, input); });
}

void UserScript::drop(Qt::MouseButton button)
{
    step(
        "drop", [this, button] { input.release(button); },
        [this] { return !inNestedLoop() && !QGuiApplication::mouseButtons(); });
}

void UserScript::cancelDrag()
{
    step(
        "cancel", [this] { input.clickKey(Qt::Key_Escape); }, [this] { return !inNestedLoop(); });
}

void UserScript::start()
{
    // From a place of no window of ours, so that the first move is one.
    input.moveTo(QPoint(0, 0));
    m_index = -1;
    m_failure.clear();
    m_heldKeys.clear();
    m_pointer = unknown;
    m_timer.start();
}

QString UserScript::finish()
{
    if (m_timer.isActive())
        m_loop.exec();
    return m_failure;
}

QString UserScript::run()
{
    start();
    return finish();
}

bool UserScript::eventFilter(QObject *object, QEvent *event)
{
    if (!object->isWindowType())
        return false;
    QWindow *const window = static_cast<QWindow *>(object);
    switch (event->type()) {
    // Qt makes no move out of an entry at the place where it saw the pointer last.
    case QEvent::Enter:
        if (!inNestedLoop())
            m_pointer = QtDifferences::globalPosition(static_cast<QEnterEvent *>(event));
        break;
    case QEvent::MouseMove:
        m_pointer = QtDifferences::globalPosition(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::DragMove:
        m_pointer = window->mapToGlobal(QtDifferences::position(static_cast<QDropEvent *>(event)));
        break;
    case QEvent::DragLeave:
        m_pointer = outside;
        break;
    case QEvent::KeyPress:
        m_heldKeys.insert(static_cast<QKeyEvent *>(event)->key());
        break;
    case QEvent::KeyRelease:
        m_heldKeys.remove(static_cast<QKeyEvent *>(event)->key());
        break;
    default:
        break;
    }
    return false;
}

void UserScript::advance()
{
    if (m_index >= 0 && !m_steps.at(m_index).done()) {
        if (m_since.elapsed() > patience)
            giveUp();
        return;
    }
    if (m_index < 0)
        m_loopLevel = QThread::currentThread()->loopLevel();
    ++m_index;
    m_since.start();
    if (m_index < m_steps.size())
        m_steps.at(m_index).action();
    else
        end();
}

// A move to where the pointer is makes no event to wait for.
void UserScript::movePointer(const QPoint &position)
{
    if (input.position() == position)
        return;
    m_pointer = unknown;
    input.moveTo(position);
}

bool UserScript::inNestedLoop() const
{
    return QThread::currentThread()->loopLevel() > m_loopLevel;
}

// Ends what the test is in, so that it can fail.
void UserScript::giveUp()
{
    m_failure = QString("step %1, %2, was not done; last seen at %3, %4")
                    .arg(QString::number(m_index + 1), m_steps.at(m_index).name,
                         QString::number(m_pointer.x()), QString::number(m_pointer.y()));
    end();
    input.releaseAll();
    input.clickKey(Qt::Key_Escape);
    if (QWidget *const dialog = QApplication::activeModalWidget())
        dialog->close();
}

void UserScript::end()
{
    m_timer.stop();
    m_steps.clear();
    m_hasMoved = false;
    m_loop.quit();
}

bool waitUntilSettled(QWidget *window)
{
    const RealInput input;
    return QTest::qWaitFor([&] { return isSettled(window, input); }, patience);
}
