"""examples/archive_spectrogram.py on two worker processes: exact, and nothing is lost by what fails."""

import os
import signal
import subprocess
import sys
import time
from pathlib import Path

import numpy as np
import pytest

import kfmgen

zarr = pytest.importorskip("zarr")
pytest.importorskip("dask.distributed")
PROGRAM = Path(__file__).parents[2] / "examples" / "archive_spectrogram.py"
BLOCK = 33 * 4 * 3 * 100   # 100 frames of 3 channels


def archive(folder, samples=64 + 32 * 5999):
    x = np.random.default_rng(1).normal(size=(3, samples)).astype(np.float32)
    zarr.save_array(str(folder / "source.zarr"), x, chunks=(3, 32 * 300))
    return x


def start(folder, *options):
    return subprocess.Popen(
        [sys.executable, PROGRAM, "source.zarr", "-o", "out", "--block-bytes", str(BLOCK),
         *(options or ("--workers", "2"))], cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
        env={**os.environ, "DASK_DISTRIBUTED__SCHEDULER__ALLOWED_FAILURES": "3"})


def finished(process):
    out, err = process.communicate(timeout=240)
    return process.returncode, out.splitlines(), err


def powers(folder):
    return zarr.open(str(folder / "out" / "source" / "powers"), mode="r")[:]


def workers(process):
    """Processes that it started, but for the watcher of what they share."""
    found = []
    for folder in Path("/proc").glob("[0-9]*"):
        try:
            parent = int((folder / "stat").read_text().rpartition(")")[2].split()[1])
            if parent == process.pid and b"spawn_main" in (folder / "cmdline").read_bytes():
                found.append(int(folder.name))
        except OSError:
            continue   # it has ended
    return found


def test_a_killed_worker_costs_no_data_and_a_second_run_does_nothing(tmp_path):
    x = archive(tmp_path)
    process = start(tmp_path)
    done = tmp_path / "out" / "source" / "done"
    deadline = time.monotonic() + 120
    while not (done.exists() and any(path.name.isdigit() for path in done.iterdir())):
        assert process.poll() is None and time.monotonic() < deadline, finished(process)
        time.sleep(0.001)
    started = workers(process)
    assert len(started) == 2
    os.kill(started[0], signal.SIGKILL)
    status, out, err = finished(process)
    assert status == 0, err
    assert out[-1] == "60 of 60 blocks are in out"
    assert powers(tmp_path).tobytes() == kfmgen.spectrogram(x, 64, 32).tobytes()

    status, out, err = finished(start(tmp_path))
    assert (status, out[0]) == (0, "60 blocks, 60 of them done before"), err


def test_what_cannot_be_read_is_named_and_done_by_the_next_run(tmp_path):
    x = archive(tmp_path)
    chunk = tmp_path / "source.zarr" / "0.4"   # samples from 38400 on
    good = chunk.read_bytes()
    chunk.write_bytes(b"not compressed")
    status, out, err = finished(start(tmp_path))
    assert status == 1
    failed = [line for line in err.splitlines() if line.startswith("not computed: ")]
    assert 3 <= len(failed) <= 4
    assert "not computed: source.zarr, samples from 38400: " in err
    assert out[-1] == f"{60 - len(failed)} of 60 blocks are in out"

    results = tmp_path / "out" / "source" / "powers"
    before = {path.name: path.stat().st_mtime_ns for path in results.iterdir()}
    chunk.write_bytes(good)
    status, out, err = finished(start(tmp_path))
    assert (status, out[0]) == (0, f"60 blocks, {60 - len(failed)} of them done before"), err
    assert powers(tmp_path).tobytes() == kfmgen.spectrogram(x, 64, 32).tobytes()
    after = {path.name: path.stat().st_mtime_ns for path in results.iterdir()}
    assert {name for name in before if before[name] != after[name]} == set()
    assert len(after) - len(before) == len(failed)


def test_a_cluster_that_runs(tmp_path):
    from dask.distributed import LocalCluster

    x = archive(tmp_path, 64 + 32 * 999)
    with LocalCluster(n_workers=2, threads_per_worker=1, dashboard_address=None) as cluster:
        status, out, err = finished(start(tmp_path, "--scheduler", cluster.scheduler_address))
    assert (status, out[-1]) == (0, "10 of 10 blocks are in out"), err
    assert powers(tmp_path).tobytes() == kfmgen.spectrogram(x, 64, 32).tobytes()


def test_other_options_are_refused(tmp_path):
    archive(tmp_path, 1000)
    assert finished(start(tmp_path))[0] == 0
    status, _, err = finished(start(tmp_path, "--hop", "16"))
    assert status != 0
    assert "holds other powers" in err
