"""Waiting for something that will be true, with a deadline and never for a fixed time."""

import time

# Seconds. A condition that comes true ends the wait at once, so that only a failure costs them.
DEADLINE = 40.0


class TooLate(AssertionError):
    """The condition did not come true in time."""


def until(what, condition, deadline=DEADLINE):
    """The first true value of condition(); raises TooLate, with the text of what() if it is callable."""
    end = time.monotonic() + deadline
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise TooLate(f"gave up after {deadline:g} s waiting for {what() if callable(what) else what}")
        time.sleep(0.02)
