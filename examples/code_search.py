"""Which of 64 Walsh codes was sent? The Walsh-Hadamard transform correlates with all of them at once.

    python3 code_search.py [picture.png]

A code of 64 chips of +1 and -1 arrives with Gaussian noise; the largest of the 64 correlations tells it.
The rate of right answers stands beside theory: the chance that 63 others stay below the right one. Otherwise
one would take a product with the matrix of codes; the times of both are printed.
"""

import sys

import matplotlib

matplotlib.use("Agg")   # no screen needed
import matplotlib.pyplot as plt
import numpy as np
import scipy.linalg
import scipy.stats
from _times import least

import kfmgen

CODES, TRIALS = 64, 20000


def theory(snr):
    """The integral over the right correlation of the chance that all others are smaller."""
    distance = np.sqrt(snr * CODES)
    x = np.linspace(-10, 10, 4001) + distance
    density = scipy.stats.norm.pdf(x - distance) * scipy.stats.norm.cdf(x) ** (CODES - 1)
    return np.trapz(density, x)


def main(picture="code_search.png"):
    random = np.random.default_rng(1)
    codes = scipy.linalg.hadamard(CODES).astype(np.float32)
    sent = random.integers(0, CODES, TRIALS)
    noise = random.normal(size=(TRIALS, CODES)).astype(np.float32)
    decibels = np.arange(-20, 1, 2)
    found, expected = [], []
    for level in decibels:
        snr = 10 ** (level / 10)
        received = np.float32(np.sqrt(snr)) * codes[sent] + noise
        found.append(np.mean(kfmgen.wht(received).argmax(1) == sent))
        expected.append(theory(snr))
    figure, axes = plt.subplots(figsize=(6, 4), layout="constrained")
    axes.plot(decibels, expected, "-", label="theory")
    axes.plot(decibels, found, "o", label=f"{TRIALS} trials")
    axes.set(xlabel="SNR of a chip in dB", ylabel="detection rate", title=f"One of {CODES} Walsh codes")
    axes.legend()
    axes.grid(True, color="#dddddd")
    figure.savefig(picture, dpi=100)
    worst = np.abs(np.array(found) - expected).max()
    print(f"detection rate at -8 dB {found[6]:.4f}, theory {expected[6]:.4f}; largest difference {worst:.4f}")

    ours, theirs = least([lambda: kfmgen.wht(noise), lambda: noise @ codes])
    print(f"{TRIALS} searches: {1e3 * ours:.2f} ms; product of matrices, by the BLAS that NumPy has here, {1e3 * theirs:.2f} ms")


if __name__ == "__main__":
    main(*sys.argv[1:])
