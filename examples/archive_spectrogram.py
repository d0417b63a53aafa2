"""Spectrograms of whole archives: recordings or a Zarr store in, a Zarr store out, on the cores of this
machine or on a cluster that runs.

    archive_spectrogram.py *.wav -o powers.zarr
    archive_spectrogram.py channels.zarr -o powers.zarr --scheduler tcp://host:8786

The work is cut into blocks of frames. A worker reads the samples of a block, computes and writes its
powers, and marks it as done: none holds more than a block, a worker that dies costs what it was at, and a
run after one that failed computes only what is missing. Workers have to see the files by the same paths.
"""

import argparse
import sys
from pathlib import Path

import numpy as np
import zarr
from dask.distributed import Client, LocalCluster, as_completed

import kfmgen

BLOCK_BYTES = 16 << 20   # of powers


class Recording:
    """A sound file, or an array of a Zarr store with time along its last axis."""

    def __init__(self, path):
        self.path = str(path)
        self._store = zarr.open(self.path, mode="r") if Path(path).is_dir() else None
        if self._store is None:
            import soundfile

            about = soundfile.info(self.path)
            self.channels, self.samples = (about.channels,), about.frames
        else:
            self.channels, self.samples = self._store.shape[:-1], self._store.shape[-1]

    def read(self, first, count):
        """Single precision, time along the last axis."""
        if self._store is not None:
            return np.asarray(self._store[..., first : first + count], np.float32)
        import soundfile

        samples, _ = soundfile.read(self.path, count, first, dtype="float32", always_2d=True)
        if len(samples) != count:
            raise OSError(f"ends after {first + len(samples)} samples instead of {self.samples}")
        return samples.T


def compute_block(source, target, block, frames, length, hop, window):
    """Frames of one block, from the recording into the store. Returns nothing that has to travel."""
    out = zarr.open(target, mode="r+")
    first = block * frames
    last = min(first + frames, out["powers"].shape[-2])
    samples = Recording(source).read(first * hop, (last - first - 1) * hop + length)
    out["powers"][..., first:last, :] = kfmgen.spectrogram(samples, length, hop, window)
    out["done"][block] = 1


def prepare(recording, target, options):
    """The store of a recording's powers, new or as an earlier run left it. Returns the blocks to do."""
    count = max(0, (recording.samples - options.length) // options.hop + 1)
    bins = options.length // 2 + 1
    row = 4 * bins * int(np.prod(recording.channels, dtype=int))
    frames = max(1, min(count, options.block_bytes // row))
    blocks = -(-count // frames)
    about = {"length": options.length, "hop": options.hop, "window": options.window,
             "samples": recording.samples, "frames_per_block": frames}
    group = zarr.open(target, mode="a")
    if "powers" not in group:
        group.create_dataset("powers", shape=(*recording.channels, count, bins), dtype="f4",
                             chunks=(*recording.channels, frames, bins))
        group.create_dataset("done", shape=blocks, chunks=1, dtype="u1")   # a file for each: no races
        group.attrs.update(about)
    elif dict(group.attrs) != about:
        raise SystemExit(f"{target} holds other powers: {dict(group.attrs)}, not {about}")
    return frames, blocks, np.flatnonzero(group["done"][:] == 0).tolist() if blocks else []


def missing_blocks(sources, options):
    """Of every block that is to do its name and the arguments of compute_block; how many there are in
    all, and how many are done."""
    todo, total = [], 0
    for source in sources:
        target = str(Path(options.output) / Path(source).stem)
        frames, blocks, missing = prepare(Recording(source), target, options)
        total += blocks
        for block in missing:
            todo.append((f"{source}, samples from {block * frames * options.hop}",
                         (str(Path(source).resolve()), str(Path(target).resolve()), block, frames,
                          options.length, options.hop, options.window)))
    return todo, total


def run(client, options):
    todo, total = missing_blocks(options.source, options)
    print(f"{total} blocks, {total - len(todo)} of them done before", flush=True)
    names, failed, done = {}, [], 0
    waiting = iter(todo)

    def submit():
        for name, arguments in waiting:
            future = client.submit(compute_block, *arguments, pure=False)
            names[future] = name
            return future

    # Enough for the workers to do; what the scheduler knows of does not grow with the archive.
    ahead = max(16, 4 * sum(client.ncores().values()))
    running = as_completed([future for future in (submit() for _ in range(ahead)) if future])
    for future in running:
        done += 1
        name = names.pop(future)
        # What a worker that is killed had done is lost, and done again while this waits.
        error = future.exception()
        if error is not None:
            failed.append(f"{name}: {error}")
        following = submit()
        if following:
            running.add(following)
        if sys.stderr.isatty():
            share = done / len(todo)
            print(f"\r[{'#' * int(40 * share):40}] {share:4.0%}", end="", file=sys.stderr)
    if todo and sys.stderr.isatty():
        print(file=sys.stderr)
    for line in sorted(failed):
        print(f"not computed: {line}", file=sys.stderr)
    print(f"{total - len(failed)} of {total} blocks are in {options.output}", flush=True)
    return 1 if failed else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0],
                                     epilog="What failed is told and done by the next run.")
    parser.add_argument("source", nargs="+", help="sound files, or arrays of Zarr stores")
    parser.add_argument("-o", "--output", required=True, help="folder of a Zarr array for each source")
    parser.add_argument("--length", type=int, default=64, help="of a frame, 2 to 64 (64)")
    parser.add_argument("--hop", type=int, default=32, help="from frame to frame (32)")
    parser.add_argument("--window", default="hann", choices=["hann", "blackman-harris"])
    parser.add_argument("--scheduler", help="address of a cluster; a local one if not given")
    parser.add_argument("--workers", type=int, help="processes of the local cluster")
    parser.add_argument("--memory-limit", default="auto", help="of each of these, such as 1GB")
    parser.add_argument("--block-bytes", type=int, default=BLOCK_BYTES,
                        help=f"of powers in a block ({BLOCK_BYTES})")
    options = parser.parse_args()
    stems = [Path(source).stem for source in options.source]
    if len(set(stems)) < len(stems):
        parser.error("two sources have the same name")
    if options.scheduler:
        with Client(options.scheduler) as client:
            return run(client, options)
    with LocalCluster(n_workers=options.workers, threads_per_worker=1, dashboard_address=None,
                      memory_limit=options.memory_limit) as cluster, Client(cluster) as client:
        return run(client, options)


if __name__ == "__main__":
    sys.exit(main())
