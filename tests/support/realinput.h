// SPDX-License-Identifier: MIT

#ifndef REALINPUT_H
#define REALINPUT_H

#include <QPoint>
#include <QSet>
#include <QString>
#include <QWindow>

#include <xcb/xcb.h>

/*
 * The pointer and the keyboard of the X server that a window test runs on, moved and pressed as a
 * user's hand would. The server has what each call sent before the call returns; when Qt notices
 * it is for the test to wait for. What is still held at the end is released.
 */
class RealInput
{
public:
    RealInput();
    ~RealInput();
    RealInput(const RealInput &) = delete;
    RealInput &operator=(const RealInput &) = delete;

    // Positions of the screen.
    QPoint position() const;
    void moveTo(const QPoint &position);
    void press(Qt::MouseButton button = Qt::LeftButton);
    void release(Qt::MouseButton button = Qt::LeftButton);
    void click(Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(Qt::MouseButton button = Qt::LeftButton);

    // Qt::Key_Control, Shift, Escape, Return, Tab, Menu, F2, the arrows and the characters of
    // Latin 1.
    void pressKey(Qt::Key key);
    void releaseKey(Qt::Key key);
    void clickKey(Qt::Key key);
    void type(const QString &text);
    void releaseAll();

    // What the user does with the close button of the window's title bar.
    void closeByWindowManager(const QWindow *window);

    // Where the window's inside is on the screen as the server has it.
    QPoint positionOf(const QWindow *window) const;

private:
    void fake(quint8 type, quint8 detail, const QPoint &position = QPoint());
    void finish();
    void readKeyboard();
    quint8 keyCode(quint32 symbol, bool *shifted = nullptr) const;

    xcb_connection_t *m_connection;
    xcb_window_t m_root;
    // All symbols of all keys, m_symbolsOfKey of them for each key from m_firstKey on.
    QVector<quint32> m_symbols;
    int m_symbolsOfKey;
    int m_firstKey;
    QSet<quint8> m_heldButtons;
    QSet<quint8> m_heldKeys;
};

#endif // REALINPUT_H
