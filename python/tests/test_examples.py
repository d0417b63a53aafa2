"""The examples, run on what they are for, and the figures that they print."""

import os
import re
import subprocess
import sys
from pathlib import Path

import pytest

EXAMPLES = Path(__file__).parents[2] / "examples"
RECORDING = Path("/usr/share/sounds/alsa/Front_Center.wav")   # of Debian's alsa-utils

pytest.importorskip("matplotlib")


def printed(name, folder):
    """What it prints; it has to save a picture."""
    done = subprocess.run([sys.executable, EXAMPLES / f"{name}.py"], cwd=folder, capture_output=True,
                          text=True, check=False, env={**os.environ, "MPLCONFIGDIR": str(folder)})
    assert done.returncode == 0, done.stderr
    assert (folder / f"{name}.png").read_bytes().startswith(b"\x89PNG")
    return done.stdout


def figures(pattern, text):
    found = re.search(pattern, text)
    assert found, text
    return [float(value) for value in found.groups()]


@pytest.mark.skipif(not RECORDING.exists(), reason="no recording")
def test_spectrogram(tmp_path):
    frames, level, second, frequency = figures(
        r"(\d+) frames; loudest (\S+) dB at (\S+) s, (\d+) Hz", printed("spectrogram", tmp_path))
    assert (frames, second, frequency) == (4281, 0.111, 750)   # as `kfmgen spectrogram` shows it
    assert -6 < level < -3


@pytest.mark.skipif(not RECORDING.exists(), reason="no recording")
def test_audio_coder(tmp_path):
    text = printed("audio_coder", tmp_path)
    error, = figures(r"largest error (\S+)", text)
    assert error < 1e-6
    rate, ratio = figures(r"(\S+) kbit/s, SNR (\S+) dB", text)
    assert rate < 25 and ratio > 20
    assert (tmp_path / "decoded.wav").stat().st_size == RECORDING.stat().st_size


def test_code_search(tmp_path):
    found, theory, difference = figures(
        r"at -8 dB (\S+), theory (\S+); largest difference (\S+)", printed("code_search", tmp_path))
    assert 0.7 < theory < 0.85
    assert abs(found - theory) <= difference < 0.015   # four deviations of 20000 trials


def test_image_blocks(tmp_path):
    text = printed("image_blocks", tmp_path)
    for n in (8, 16):
        hartley, wht, dct2 = figures(
            rf"of {n} x {n}.*Hartley (\S+) dB, Walsh-Hadamard (\S+) dB, DCT-II (\S+) dB", text)
        assert dct2 > wht > 40 and dct2 > hartley > 40
