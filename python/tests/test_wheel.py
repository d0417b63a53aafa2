"""The wheel has all that it needs, and says what is in it."""

import base64
import csv
import hashlib
import os
import subprocess
import sys
import zipfile
from pathlib import Path

import pytest

BUILD = os.environ.get("KFM_BUILD")


@pytest.mark.skipif(not BUILD, reason="no build to make a wheel of")
def test_wheel(tmp_path, monkeypatch, pytestconfig):
    monkeypatch.syspath_prepend(pytestconfig.rootpath)
    import wheel_of_cmake

    monkeypatch.setattr(wheel_of_cmake, "_built", lambda: Path(BUILD))
    name = wheel_of_cmake.build_wheel(tmp_path)
    place = tmp_path / "unpacked"
    with zipfile.ZipFile(tmp_path / name) as wheel:
        wheel.extractall(place)
    information = name.split("-cp")[0] + ".dist-info"
    assert f"Tag: {name[len('kfmgen-6.1-'):-len('.whl')]}" in (place / information / "WHEEL").read_text()
    listed = list(csv.reader((place / information / "RECORD").open()))
    assert sorted(row[0] for row in listed) == sorted(
        path.relative_to(place).as_posix() for path in place.rglob("*") if path.is_file())
    for path, digest, size in listed[:-1]:
        content = (place / path).read_bytes()
        assert int(size) == len(content)
        assert digest == "sha256=" + base64.urlsafe_b64encode(
            hashlib.sha256(content).digest()).rstrip(b"=").decode()
    for file in ("__init__.pyi", "py.typed"):
        assert (place / "kfmgen" / file).exists()

    # Elsewhere, with no library of this machine in sight.
    environment = {key: value for key, value in os.environ.items() if key != "LD_LIBRARY_PATH"}
    loaded = subprocess.run(
        [sys.executable, "-c", "import kfmgen\nprint(kfmgen.wht([1, 1]))\n"
         "print(*{l.split()[5] for l in open('/proc/self/maps') if '/libkfm' in l}, sep='\\n')"],
        env={**environment, "PYTHONPATH": str(place)}, cwd=tmp_path, check=True,
        capture_output=True, text=True).stdout.splitlines()
    assert loaded[0] == "[2. 0.]"
    assert len(loaded) >= 3
    assert all(path.startswith(str(place)) for path in loaded[1:]), loaded
