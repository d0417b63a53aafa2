"""A lapped-transform coder of sound: windowed blocks that overlap by half, the DCT-IV of each, coarse
numbers, and back.

    python3 audio_coder.py [recording.wav] [decoded.wav] [picture.png]

The transform is the modulated lapped transform (Malvar 1990): 2N samples under a sine window are folded to
N, whose DCT-IV is taken; what folding adds up cancels between neighbours. The bit rate is the entropy of
the numbers, band by band, which an arithmetic coder comes close to. Otherwise one would take
scipy.fft.dct(type=4); the times of both are printed.
"""

import sys

import matplotlib

matplotlib.use("Agg")   # no screen needed
import matplotlib.pyplot as plt
import numpy as np
import scipy.fft
import soundfile
from _times import least

import kfmgen

N = 256
WINDOW = np.sin(np.pi * (np.arange(2 * N) + 0.5) / (2 * N)).astype(np.float32)


def folded(x):
    """Blocks of N from those of 2N that begin every N samples."""
    blocks = np.lib.stride_tricks.sliding_window_view(x, 2 * N)[::N] * WINDOW
    a, b, c, d = np.split(blocks, 4, axis=1)
    return np.concatenate([-c[:, ::-1] - d, a - b[:, ::-1]], axis=1)


def unfolded(y):
    """The samples that blocks overlap to."""
    p, q = np.split(y, 2, axis=1)
    blocks = np.concatenate([q, -q[:, ::-1], -p[:, ::-1], -p], axis=1) * WINDOW
    x = np.zeros((len(y) + 1) * N, np.float32)
    x[:-N] += blocks[:, :N].reshape(-1)
    x[N:] += blocks[:, N:].reshape(-1)
    return x


def entropy(numbers):
    """Bits of each, of a row for every coefficient."""
    bits = 0.0
    for row in numbers:
        _, counts = np.unique(row, return_counts=True)
        bits += (counts * np.log2(row.size / counts)).sum()
    return bits / numbers.size


def coded(x, step):
    """Decoded samples, and bits a sample."""
    padded = np.pad(x, (N, 2 * N - len(x) % N))
    coefficients = kfmgen.dct4(folded(padded), norm="ortho")
    # Coarser where it is loud, as the ear is: by the third root of the level of 8 neighbours.
    bands = np.abs(coefficients).reshape(len(coefficients), -1, 8).mean(-1).mean(0)
    steps = np.repeat(step * np.cbrt(bands / bands.max() + 1e-6), 8).astype(np.float32)
    numbers = np.round(coefficients / steps)
    decoded = unfolded(kfmgen.dct4(numbers * steps, norm="ortho"))[N : N + len(x)]
    return decoded, entropy(numbers.T)


def main(recording="/usr/share/sounds/alsa/Front_Center.wav", decoded_file="decoded.wav",
         picture="audio_coder.png"):
    samples, rate = soundfile.read(recording, dtype="float32", always_2d=True)
    x = np.ascontiguousarray(samples[:, 0])
    exact = coded(x, 1e-7)[0]
    print(f"back without coarse numbers: largest error {np.abs(exact - x).max():.1e}")
    rates, ratios = [], []
    for step in np.geomspace(0.3, 0.003, 9):
        decoded, bits = coded(x, step)
        rates.append(bits * rate / 1000)
        ratios.append(10 * np.log10((x**2).sum() / ((x - decoded) ** 2).sum()))
        if ratios[-1] > 20 and not any(ratio > 20 for ratio in ratios[:-1]):
            soundfile.write(decoded_file, decoded, rate)
            print(f"{rates[-1]:.1f} kbit/s, SNR {ratios[-1]:.1f} dB, in {decoded_file}")
    figure, axes = plt.subplots(figsize=(6, 4), layout="constrained")
    axes.plot(rates, ratios, "o-")
    axes.set(xlabel="bit rate in kbit/s", ylabel="SNR in dB", title=f"Lapped transform of {N} bands")
    axes.grid(True, color="#dddddd")
    figure.savefig(picture, dpi=100)

    blocks = folded(np.pad(x, (N, 2 * N)))
    ours, theirs = least([lambda: kfmgen.dct4(blocks, norm="ortho"),
                          lambda: scipy.fft.dct(blocks, 4, norm="ortho")])
    print(f"{len(blocks)} blocks: {1e6 * ours:.0f} us; scipy.fft.dct {1e6 * theirs:.0f} us")


if __name__ == "__main__":
    main(*sys.argv[1:])
