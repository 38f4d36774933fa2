"""Waiting for something to become true, with a limit."""
import time

# Generous, for builds with sanitizers on a busy machine; nothing is slow because of it.
LIMIT_SECONDS = 30
STEP_SECONDS = 0.02


class TookTooLong(AssertionError):
    pass


def eventually(check, what, limit=LIMIT_SECONDS):
    """The first answer of `check` that is not false. Text in `what` says what did not come about."""
    deadline = time.monotonic() + limit
    while True:
        answer = check()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise TookTooLong(f"not within {limit} s: {what}")
        time.sleep(STEP_SECONDS)
