"""Waiting for what a program brings about, instead of sleeping and hoping."""

import time


class TooLate(AssertionError):
    pass


def wait_for(what, condition, seconds=10.0):
    """The first true answer of `condition`, asked again and again; fails with `what` and the last answer."""
    deadline = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise TooLate(f"waited {seconds:g} s in vain for {what}; last answer: {answer!r}")
        time.sleep(0.03)


def holds_for(what, condition, seconds):
    """Fails when `condition` stops being true within the time: for things that must not happen."""
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        assert condition(), f"{what} held only for a part of {seconds:g} s"
        time.sleep(0.05)
