"""How the examples time what they do: in turns, the least of several calls."""

import time


def least(subjects, turns=15):
    """Seconds of one call of each."""
    best = [float("inf")] * len(subjects)
    for _ in range(turns):
        for i, subject in enumerate(subjects):
            start = time.perf_counter()
            subject()
            best[i] = min(best[i], time.perf_counter() - start)
    return best
