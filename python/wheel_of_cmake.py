"""Builds the wheel for `pip install ./python` in a checkout: what `make` builds below build/, with
the libraries inside. It needs NumPy where it is built, CMake and a compiler; nothing is fetched."""

import base64
import hashlib
import os
import re
import subprocess
import sys
import sysconfig
import tempfile
import zipfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent


def _version():
    header = (ROOT / "include" / "kfmgen.h").read_text()
    return ".".join(re.findall(r"#define KFMGEN_VERSION_M(?:AJOR|INOR)\s+(\d+)", header))


def _built():
    """The folder of the build. It is the one that `make` uses, so that nothing is compiled twice."""
    # As outside of pip, which hides the packages of the interpreter from what it builds.
    environment = {key: value for key, value in os.environ.items() if key != "PYTHONPATH"}
    python = sys.executable
    if subprocess.run([python, "-c", "import numpy"], env=environment, capture_output=True).returncode:
        raise SystemExit(f"{python} has no NumPy, which the package is built with and for.")
    build = Path(environment.get("BUILD", "build"))
    environment.update(TARGETS="own", GOAL="kfmgen_wheel")
    subprocess.run([ROOT / "tools" / "build.sh", environment.get("JOBS", str(os.cpu_count())),
                    "-DKFM_BUILD_PYTHON=ON", f"-DKFM_PYTHON={python}"],
                   cwd=ROOT, env=environment, check=True)
    own = subprocess.run([ROOT / "tools" / "own_target.sh"], capture_output=True, text=True, check=True)
    return ROOT / build / own.stdout.strip()


def _metadata():
    return f"""Metadata-Version: 2.1
Name: kfmgen
Version: {_version()}
Summary: Signal transforms of short fixed length
Requires-Python: >=3.9
Requires-Dist: numpy
"""


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    python = f"cp{sys.version_info.major}{sys.version_info.minor}"
    tag = f"{python}-{python}-{sysconfig.get_platform().replace('-', '_').replace('.', '_')}"
    name = f"kfmgen-{_version()}-{tag}.whl"
    information = f"kfmgen-{_version()}.dist-info"
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["cmake", "--install", _built(), "--component", "python",
                        "--prefix", folder, "--strip"], check=True, stdout=sys.stderr)
        files = {path.relative_to(folder).as_posix(): path.read_bytes()
                 for path in sorted(Path(folder).rglob("*")) if path.is_file()}
    files[f"{information}/METADATA"] = _metadata().encode()
    files[f"{information}/WHEEL"] = (
        f"Wheel-Version: 1.0\nGenerator: kfmgen\nRoot-Is-Purelib: false\nTag: {tag}\n".encode())
    record = ""
    with zipfile.ZipFile(Path(wheel_directory) / name, "w", zipfile.ZIP_DEFLATED) as wheel:
        for path, content in files.items():
            wheel.writestr(path, content)
            digest = base64.urlsafe_b64encode(hashlib.sha256(content).digest()).rstrip(b"=").decode()
            record += f"{path},sha256={digest},{len(content)}\n"
        wheel.writestr(f"{information}/RECORD", record + f"{information}/RECORD,,\n")
    return name
