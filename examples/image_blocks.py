"""Blocks of an image by transforms of rows and columns: what is left of it with a tenth of the numbers.

    python3 image_blocks.py [image.png] [picture.png]

Blocks of 8 x 8 and 16 x 16 under the Walsh-Hadamard and the Hartley transform in two dimensions, all blocks
in two calls: the axes of an array may lie anywhere. Otherwise one would take scipy.fft.dctn of type 2, which keeps
more of a picture in few numbers; the times of both are printed.
"""

import sys
from pathlib import Path

import matplotlib

matplotlib.use("Agg")   # no screen needed
import matplotlib.pyplot as plt
import numpy as np
import scipy.fft
from _times import least

import kfmgen

KEPT = 0.1


def blocks_of(image, n):
    """A view of n x n blocks: rows of blocks, blocks, rows, columns."""
    height, width = (size // n for size in image.shape)
    return image[: height * n, : width * n].reshape(height, n, width, n).swapaxes(1, 2)


def ours(transform, blocks):
    rows = transform(blocks, axis=-1, norm="ortho")
    return transform(rows, axis=-2, norm="ortho", out=rows)


def strongest(coefficients):
    """The largest tenth, zeros for the others."""
    limit = np.quantile(np.abs(coefficients), 1 - KEPT)
    return np.where(np.abs(coefficients) >= limit, coefficients, 0)


def quality(original, restored):
    return 10 * np.log10(1 / np.mean((original - restored) ** 2))


def main(image=str(Path(__file__).parents[1] / "docs" / "pictures" / "speech.png"),
         picture="image_blocks.png"):
    grey = plt.imread(image)[..., :3].mean(-1).astype(np.float32)
    figure, panels = plt.subplots(1, 3, figsize=(13, 3), layout="constrained")
    panels[0].imshow(grey, cmap="gray", vmin=0, vmax=1)
    panels[0].set_title("original")
    for panel, n in zip(panels[1:], (8, 16)):
        blocks = blocks_of(grey, n)
        words = []
        for name, transform in (("Hartley", kfmgen.hartley), ("Walsh-Hadamard", kfmgen.wht)):
            coefficients = ours(transform, blocks)
            assert np.allclose(ours(transform, coefficients), blocks, atol=1e-5)   # its own inverse
            restored = ours(transform, strongest(coefficients))
            words.append(f"{name} {quality(blocks, restored):.1f} dB")
        dct2 = scipy.fft.dctn(blocks, axes=(2, 3), norm="ortho")
        restored2 = scipy.fft.idctn(strongest(dct2), axes=(2, 3), norm="ortho")
        times = least([lambda: ours(kfmgen.hartley, blocks), lambda: ours(kfmgen.wht, blocks),
                       lambda: scipy.fft.dctn(blocks, axes=(2, 3), norm="ortho")])
        print(f"{blocks.shape[0] * blocks.shape[1]} blocks of {n} x {n}, a tenth of the numbers: "
              f"PSNR {', '.join(words)}, DCT-II {quality(blocks, restored2):.1f} dB; "
              f"{1e3 * times[0]:.2f}, {1e3 * times[1]:.2f}, scipy.fft.dctn {1e3 * times[2]:.2f} ms")
        panel.imshow(restored.swapaxes(1, 2).reshape(-1, blocks.shape[1] * n), cmap="gray", vmin=0,
                     vmax=1)
        panel.set_title(f"{n} x {n}, Walsh-Hadamard, {KEPT:.0%} of the numbers")
    for panel in panels:
        panel.axis("off")
    figure.savefig(picture, dpi=100)


if __name__ == "__main__":
    main(*sys.argv[1:])
