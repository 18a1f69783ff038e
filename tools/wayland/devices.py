# SPDX-License-Identifier: MIT
"""A pointer and a keyboard in a Wayland session, made by the protocols for virtual devices."""

import os
import socket
import struct
import time

KEYMAP = b"""xkb_keymap {
    xkb_keycodes { include "evdev" };
    xkb_types { include "complete" };
    xkb_compat { include "complete" };
    xkb_symbols { include "pc+us" };
};
\0"""

# Numbers of the Linux kernel.
BUTTONS = {1: 0x110, 3: 0x111}
KEYS = {"Escape": 1, "Return": 28, "ctrl": 29, "shift": 42, "space": 57, "F1": 59, "Up": 103,
        "Down": 108, "Delete": 111}
for first, row in (16, "qwertyuiop"), (30, "asdfghjkl"), (44, "zxcvbnm"):
    KEYS.update({letter: number for number, letter in enumerate(row, start=first)})
MODIFIERS = {"shift": 1, "ctrl": 4}

DISPLAY, REGISTRY = 1, 2
WHEEL_STEP = 15


class Connection:
    """The few requests that the devices need. A Wayland message is an object, a number, and values."""

    def __init__(self, path):
        self._socket = socket.socket(socket.AF_UNIX)
        self._socket.connect(path)
        self._last = DISPLAY
        self._received = b""
        self._globals = {}
        self.send(DISPLAY, 1, self.new_object())
        self.wait()

    def new_object(self):
        self._last += 1
        return self._last

    def bind(self, interface):
        name = self._globals[interface]
        made = self.new_object()
        self.send(REGISTRY, 0, name, interface, 1, made)
        return made

    def send(self, target, opcode, *values, descriptor=None):
        body = b"".join(map(packed, values))
        message = struct.pack("=II", target, (len(body) + 8) << 16 | opcode) + body
        socket.send_fds(self._socket, [message], [] if descriptor is None else [descriptor])

    def wait(self):
        """Returns when the compositor has taken all requests."""
        callback = self.new_object()
        self.send(DISPLAY, 0, callback)
        while True:
            source, opcode, body = self._next_event()
            if source == callback:
                return
            if source == REGISTRY and opcode == 0:
                name, length = struct.unpack_from("=II", body)
                self._globals[body[8:7 + length].decode()] = name
            if source == DISPLAY and opcode == 0:
                raise OSError(f"the compositor refuses a request: {body[12:]}")

    def _next_event(self):
        source, word = struct.unpack("=II", self._read(8))
        return source, word & 0xffff, self._read((word >> 16) - 8)

    def _read(self, size):
        while len(self._received) < size:
            received = self._socket.recv(4096)
            if not received:
                raise OSError("the compositor has ended")
            self._received += received
        result, self._received = self._received[:size], self._received[size:]
        return result


class Devices:
    """One pointer and one keyboard for as long as this object lives."""

    def __init__(self, path, width, height):
        self._connection = Connection(path)
        self._size = (width, height)
        seat = self._connection.bind("wl_seat")
        self._pointer = self._made_by("zwlr_virtual_pointer_manager_v1", seat)
        self._keyboard = self._made_by("zwp_virtual_keyboard_manager_v1", seat)
        with memory_with(KEYMAP) as descriptor:
            self._connection.send(self._keyboard, 0, 1, len(KEYMAP), descriptor=descriptor.fileno())
        self._connection.wait()

    def move(self, x, y):
        self._point(1, now(), x, y, *self._size)

    def hold(self, button):
        self._point(2, now(), BUTTONS[button], 1)

    def release(self, button):
        self._point(2, now(), BUTTONS[button], 0)

    def turn_wheel(self, steps):
        """Turns the wheel down, or with a negative number up."""
        self._connection.send(self._pointer, 5, 0)
        self._point(7, now(), 0, steps * WHEEL_STEP * 256, steps)

    def press(self, *keys):
        """Presses keys together, the last one once, as in press("ctrl", "q")."""
        *held, last = (KEYS[key] for key in keys)
        modifiers = sum(MODIFIERS[key] for key in keys[:-1])
        for key in held:
            self._key(key, 1)
        self._connection.send(self._keyboard, 2, modifiers, 0, 0, 0)
        self._key(last, 1)
        self._key(last, 0)
        for key in reversed(held):
            self._key(key, 0)
        self._connection.send(self._keyboard, 2, 0, 0, 0, 0)
        self._connection.wait()

    def _made_by(self, manager, seat):
        maker = self._connection.bind(manager)
        made = self._connection.new_object()
        self._connection.send(maker, 0, seat, made)
        return made

    def _point(self, opcode, *values):
        self._connection.send(self._pointer, opcode, *values)
        self._connection.send(self._pointer, 4)
        self._connection.wait()

    def _key(self, key, state):
        self._connection.send(self._keyboard, 1, now(), key, state)


def memory_with(data):
    file = os.fdopen(os.memfd_create("keymap"), "w+b")
    file.write(data)
    file.flush()
    return file


def now():
    return int(time.monotonic() * 1000) & 0xffffffff


def packed(value):
    if isinstance(value, str):
        text = value.encode() + b"\0"
        return struct.pack("=I", len(text)) + text + b"\0" * (-len(text) % 4)
    return struct.pack("=i" if value < 0 else "=I", value)
