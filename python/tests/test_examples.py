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
BUILD = os.environ.get("KFM_BUILD")


def printed(name, folder):
    """What it prints; it has to save a picture."""
    command = [sys.executable, EXAMPLES / f"{name}.py"]
    if (EXAMPLES / "cpp" / f"{name}.cpp").exists():
        command = [Path(BUILD or "") / "examples" / name]
        if not BUILD or not command[0].exists():
            pytest.skip("not built")
    done = subprocess.run(command, cwd=folder, capture_output=True,
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


def test_ofdm(tmp_path):
    rates = re.findall(r"SNR +(\d+) dB: symbol error rate (\S+), theory (\S+)", printed("ofdm", tmp_path))
    assert len(rates) == 8
    for _, measured, theory in rates:
        deviation = (float(theory) * (1 - float(theory)) / 96000) ** 0.5
        assert abs(float(measured) - float(theory)) < 5 * deviation + 1e-5


@pytest.mark.skipif(not RECORDING.exists(), reason="no recording")
def test_pitch(tmp_path):
    voiced, frames, median, low, high = figures(
        r"voiced (\d+) of (\d+) frames, pitch (\d+) Hz in the median, (\d+) to (\d+)",
        printed("pitch", tmp_path))
    assert 80 < voiced < 140 and frames == 279
    assert 150 < low < median < high < 290   # the voice of a woman


def test_static_dct4(tmp_path):
    error, allocated = figures(r"largest error (\S+), (\d+) bytes allocated",
                               printed("static_dct4", tmp_path))
    assert 0 < error < 2e-6
    assert allocated == 0


def test_hartley_convolution(tmp_path):
    difference, = figures(r"largest difference from the sum (\S+)",
                          printed("hartley_convolution", tmp_path))
    assert 0 < difference < 1e-14
