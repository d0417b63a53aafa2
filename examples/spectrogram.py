"""The spectrogram of a recording, drawn by matplotlib.

    python3 spectrogram.py [recording.wav] [picture.png]

Otherwise one would take scipy.signal.spectrogram; the times of both are printed.
"""

import sys

import matplotlib

matplotlib.use("Agg")   # no screen needed
import matplotlib.pyplot as plt
import numpy as np
import scipy.signal
import soundfile
from _times import least

import kfmgen

LENGTH, HOP = 64, 16


def main(recording="/usr/share/sounds/alsa/Front_Center.wav", picture="spectrogram.png"):
    samples, rate = soundfile.read(recording, dtype="float32", always_2d=True)
    x = samples.mean(1)
    powers = kfmgen.spectrogram(x, LENGTH, HOP, "blackman-harris")
    decibels = 10 * np.log10(np.maximum(4 * powers, 1e-12))   # 0 dB is a full-scale sine

    figure, axes = plt.subplots(figsize=(9, 4), layout="constrained")
    image = axes.imshow(decibels.T, origin="lower", aspect="auto", cmap="magma", vmin=-100, vmax=0,
                        extent=(0, len(x) / rate, 0, rate / 2000))
    axes.set(xlabel="time in s", ylabel="frequency in kHz",
             title=f"{LENGTH} samples every {HOP}, Blackman-Harris window")
    figure.colorbar(image, label="level in dB")
    figure.savefig(picture, dpi=100)

    ours, theirs = least([
        lambda: kfmgen.spectrogram(x, LENGTH, HOP, "blackman-harris"),
        lambda: scipy.signal.spectrogram(x, window="blackmanharris", nperseg=LENGTH, detrend=False,
                                         noverlap=LENGTH - HOP, scaling="spectrum")])
    decibels[:, 0] = -np.inf   # no sine
    loudest = np.unravel_index(decibels.argmax(), decibels.shape)
    print(f"{len(powers)} frames; loudest {decibels[loudest]:.1f} dB at {loudest[0] * HOP / rate:.3f} s, "
          f"{loudest[1] * rate / LENGTH:.0f} Hz")
    print(f"{1e3 * ours:.2f} ms; scipy.signal.spectrogram {1e3 * theirs:.2f} ms")


if __name__ == "__main__":
    main(*sys.argv[1:])
