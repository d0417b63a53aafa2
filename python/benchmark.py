"""Times the package beside scipy.fft, one worker, and np.copyto: all in one process, taking turns, the
least of all batches. Prints tables in Markdown.

    PYTHONPATH=build/x86-64/python python3 python/benchmark.py [--batches 200]
"""

import argparse
import time

import numpy as np
import scipy.fft

import kfmgen


def least(subjects, batches):
    """ns of one call of each subject."""
    loops, best = [], [np.inf] * len(subjects)
    for subject in subjects:
        count, spent = 1, 0.0
        while spent < 2e-4:
            count *= 2
            start = time.perf_counter()
            for _ in range(count):
                subject()
            spent = time.perf_counter() - start
        loops.append(count)
    for _ in range(batches):
        for i, subject in enumerate(subjects):
            start = time.perf_counter()
            for _ in range(loops[i]):
                subject()
            best[i] = min(best[i], (time.perf_counter() - start) / loops[i])
    return [1e9 * value for value in best]


def backed(function):
    """scipy.fft's function under the backend, which is set around all its calls."""
    def call(*arguments):
        with scipy.fft.set_backend(kfmgen.scipy_backend):
            return function(*arguments)
    return call


def families():
    """Name, ours, scipy's, and the types of the source."""
    yield "fft", kfmgen.dft, scipy.fft.fft, (np.complex64, np.complex128)
    yield "rfft", kfmgen.rfft, scipy.fft.rfft, (np.float32, np.float64)
    yield "irfft", kfmgen.irfft, scipy.fft.irfft, (np.complex64, np.complex128)
    yield "dct 4", kfmgen.dct4, lambda x: scipy.fft.dct(x, 4), (np.float32, np.float64)


def source(name, kind, rows, n):
    n = n // 2 + 1 if name == "irfft" else n
    x = np.random.default_rng(1).normal(size=(rows, n) if rows > 1 else n)
    return (x + 1j * x[::-1]).astype(kind) if np.issubdtype(kind, np.complexfloating) else x.astype(kind)


def print_rows(rows, batches):
    print(f"\n{rows} rows, ns a row; ratio to scipy.fft, and of scipy.fft under the backend\n")
    print("| function | type | N | ours | scipy | ratio | backend |\n|---|---|--:|--:|--:|--:|--:|")
    for name, ours, theirs, kinds in families():
        for kind in kinds:
            for n in (8, 13, 16, 32, 64):
                if name == "dct 4" and n == 13:
                    continue
                x = source(name, kind, rows, n)
                mine, other, through = least(
                    [lambda: ours(x), lambda: theirs(x), lambda: backed(theirs)(x)], batches)
                print(f"| {name} | {np.dtype(kind)} | {n} | {mine / rows:.1f} | {other / rows:.1f} | "
                      f"{mine / other:.2f} | {through / other:.2f} |", flush=True)


def print_copies(batches):
    print("\n10^5 rows with `out`, beside np.copyto of the same arrays\n")
    print("| function | type | N | ns a row | copyto | ratio |\n|---|---|--:|--:|--:|--:|")
    for name, ours, kind in (("dft", kfmgen.dft, np.complex64), ("dft", kfmgen.dft, np.complex128),
                             ("hartley", kfmgen.hartley, np.float32),
                             ("hartley", kfmgen.hartley, np.float64)):
        for n in (8, 16, 32, 64):
            x = source(name, kind, 100_000, n)
            out = np.empty_like(x)
            mine, copy = least([lambda: ours(x, out=out), lambda: np.copyto(out, x)],
                               max(10, batches // 10))
            print(f"| {name} | {np.dtype(kind)} | {n} | {mine / 1e5:.1f} | {copy / 1e5:.1f} | "
                  f"{mine / copy:.2f} |", flush=True)


def main():
    parser = argparse.ArgumentParser(description="Times kfmgen beside scipy.fft.")
    parser.add_argument("--batches", type=int, default=200)
    batches = parser.parse_args().batches
    print_rows(1, batches)
    print_rows(1000, batches)
    print_copies(batches)


main()
