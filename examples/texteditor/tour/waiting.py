# SPDX-License-Identifier: MIT
"""Waiting for conditions: the tour never sleeps in the hope that something has happened."""

import time

from gi.repository import GLib

PATIENCE = 30
PAUSE = 0.03


class NotSo(Exception):
    """The program is not in the state that the tour expects."""


def wait_for(what, probe, accept=bool):
    """Asks probe() until accept() takes its answer, and returns that answer.

    A widget that goes away while it is asked counts as no answer.
    """
    deadline = time.monotonic() + PATIENCE
    while True:
        deliver_events()
        try:
            answer = probe()
            if accept(answer):
                return answer
        except GLib.Error as error:
            answer = error
        if time.monotonic() > deadline:
            raise NotSo(f"{what}: {answer!r} after {PATIENCE} seconds")
        time.sleep(PAUSE)


def expect(what, probe, wanted):
    """Waits until probe() answers what is wanted, twice in a row."""
    answers = [None]

    def lasting(answer):
        answers.append(answer)
        return answers[-2:] == [wanted, wanted]

    try:
        wait_for(what, probe, lasting)
    except NotSo:
        raise NotSo(f"{what}: expected {wanted!r}, found {answers[-1]!r}") from None


def settled(what, probe):
    """Asks probe() until it answers the same twice in a row, and returns that answer."""
    answers = [None]

    def is_settled():
        answers.append(probe())
        return answers[-1] == answers.pop(0)

    wait_for(f"{what} does not settle", is_settled)
    return answers[-1]


def deliver_events():
    """Hands out the accessibility events that have come in."""
    while GLib.MainContext.default().iteration(False):
        pass
