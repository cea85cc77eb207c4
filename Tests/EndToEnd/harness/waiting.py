"""Waits for conditions with a deadline, never for a fixed time."""

import time

# Seconds. The wait ends as soon as the condition is true; only a failure takes this long.
DEADLINE = 40.0


class TooLate(AssertionError):
    """The condition was not true in time."""


def until(what, condition, deadline=DEADLINE):
    """Returns the first true value of condition(). Raises TooLate after the deadline, with the text what, which may
    be a function."""
    end = time.monotonic() + deadline
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise TooLate(f"gave up after {deadline:g} s waiting for {what() if callable(what) else what}")
        time.sleep(0.02)
