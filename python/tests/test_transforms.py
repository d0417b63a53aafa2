"""Every family, length, type and normalisation: against SciPy and, bit by bit, the C library."""

import ctypes

import numpy as np
import pytest
from conftest import FAMILIES, NORMS, loaded

def tolerance(double):
    return 10 * (2**-53 if double else 2**-24)


@pytest.mark.parametrize("double", [False, True], ids=["single", "double"])
@pytest.mark.parametrize("family", FAMILIES, ids=str)
def test_values(family, double):
    random = np.random.default_rng(1)
    for n in family.lengths:
        x = family.source(random, n, double)
        for norm in NORMS:
            expected = family.theirs(x.astype(np.result_type(x, np.float64)), n, norm)
            y = family.ours(x, n, norm=norm)
            assert y.dtype.itemsize == (8 if double else 4) * (1 + family.complex_out)
            assert y.shape == expected.shape
            error = np.abs(y - expected).max() / np.abs(expected).max()
            assert error < tolerance(double) * (1 + np.log2(n) / 8), (n, norm)


C_NAMES = {
    "dft": "DFTFwd_CToC", "idft": "DFTInv_CToC", "rdft-ccs": "DFTFwd_RToCCS",
    "rdft-pack": "DFTFwd_RToPack", "rdft-perm": "DFTFwd_RToPerm", "irdft-ccs": "DFTInv_CCSToR",
    "irdft-pack": "DFTInv_PackToR", "irdft-perm": "DFTInv_PermToR", "rfft": "DFTFwd_RToCCS",
    "irfft": "DFTInv_CCSToR", "hartley": "Hartley", "wht": "WHT",
}


def c_flag(family, norm, header):
    inverse = family.name.startswith("i")
    word = {"ortho": "kfmScaleBySqrtN", "backward": "kfmScaleInvByN" if inverse else "kfmScaleNone",
            "forward": "kfmScaleNone" if inverse else "kfmScaleFwdByN"}[norm]
    return header[word]


@pytest.fixture(scope="session")
def header(pytestconfig):
    """The flags as the public header numbers them."""
    import re

    text = (pytestconfig.rootpath.parent / "include" / "kfmgen.h").read_text()
    flags = dict(re.findall(r"(kfmScale\w+)\s*=\s*(\d+)", text))
    assert len(flags) == 4, flags
    return {name: int(value) for name, value in flags.items()}


@pytest.mark.parametrize("double", [False, True], ids=["single", "double"])
@pytest.mark.parametrize("family", [f for f in FAMILIES if f.name in C_NAMES], ids=str)
def test_bits(family, double, header):
    random = np.random.default_rng(2)
    suffix = ("64f" if double else "32f") + ("c" if family.name in ("dft", "idft") else "")
    function = getattr(loaded("libkfmgenw7"), f"kfmg{C_NAMES[family.name]}_{suffix}")
    for n in family.lengths:
        x = family.source(random, n, double)
        for norm in NORMS:
            y = family.ours(x, n, norm=norm)
            for row, result in zip(x, y):
                expected = np.zeros_like(result)
                where = [ctypes.c_void_p(a.ctypes.data) for a in (row, expected)]
                last = [] if family.name != "wht" else [None]
                length = n if family.name != "wht" else n.bit_length() - 1
                status = function(*where, length, c_flag(family, norm, header), *last)
                assert status == 0
                assert result.tobytes() == expected.tobytes(), (n, norm)


@pytest.mark.parametrize("double", [False, True], ids=["single", "double"])
def test_bits_of_dct4(double):
    import kfmgen

    suffix = "64f" if double else "32f"
    library = loaded("libkfmgenw7")
    random = np.random.default_rng(3)
    for n in (2, 8, 32, 33, 64, 1024, 8192):
        x = random.normal(size=n).astype(np.float64 if double else np.float32)
        expected = np.zeros_like(x)
        plan = ctypes.c_void_p()
        assert getattr(library, f"kfmgDCT4InitAlloc_{suffix}")(ctypes.byref(plan), n) == 0
        where = [ctypes.c_void_p(a.ctypes.data) for a in (x, expected)]
        assert getattr(library, f"kfmgDCT4_{suffix}")(*where, plan) == 0
        assert getattr(library, f"kfmgDCT4Free_{suffix}")(plan) == 0
        assert kfmgen.dct4(x).tobytes() == (2 * expected).tobytes()
