"""Threads, references, the examples of the documentation, and which library it is."""

import doctest
import gc
import os
import sys
import threading
import time

import numpy as np
import pytest
from conftest import FAMILIES, loaded

import kfmgen


def test_eight_threads_at_a_time():
    random = np.random.default_rng(1)
    work = []
    for family in FAMILIES:
        for n in (16, 32, 64):
            x = family.source(random, n, True, rows=200)
            work.append((family, n, x, family.ours(x, n)))
    wrong, start = [], threading.Barrier(8)

    def check(first):
        start.wait()
        for turn in range(3):
            for family, n, x, expected in work[first:] + work[:first]:
                if family.ours(x, n).tobytes() != expected.tobytes():
                    wrong.append((family.name, n))

    threads = [threading.Thread(target=check, args=(4 * i,)) for i in range(8)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not wrong


def test_others_run_meanwhile():
    x = np.zeros((200000, 64), np.complex64)
    done, ticks = threading.Event(), []

    def tick():
        while not done.is_set():
            ticks.append(0)
            time.sleep(1e-4)

    thread = threading.Thread(target=tick)
    thread.start()
    before = len(ticks)
    interval = sys.getswitchinterval()
    sys.setswitchinterval(100)   # nobody gives the lock away
    try:
        kfmgen.dft(x, out=x)
        during = len(ticks) - before
    finally:
        done.set()
        sys.setswitchinterval(interval)
        thread.join()
    assert during > 0


def resident():
    with open("/proc/self/statm") as file:
        return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")


def test_a_million_calls_leave_nothing_behind():
    x, out = np.ones((2, 8)), np.ones((2, 8))
    strided = np.ones((2, 16))[:, ::2].T
    refused = [(np.ones(65), {}), (np.array(["a", "b"]), {}), (x, {"axis": 5}), (x, {"norm": "no"}),
               (x, {"out": np.ones(3)})]
    norm, objects = "orthogonal"[:5], [x, out, strided]

    def calls(count):
        for _ in range(count):
            kfmgen.hartley(x, out=out)
            kfmgen.hartley(x, norm=norm)
            kfmgen.rfft(x)
            kfmgen.wht(strided, axis=0)
            for argument, options in refused:
                try:
                    kfmgen.hartley(argument, **options)
                except (ValueError, TypeError):
                    pass

    calls(1000)
    gc.collect()
    counts = [sys.getrefcount(thing) for thing in objects + [norm, np.dtype(float), kfmgen.dft]]
    memory = resident()
    calls(120_000)   # of nine each
    gc.collect()
    assert counts == [sys.getrefcount(thing) for thing in objects + [norm, np.dtype(float), kfmgen.dft]]
    assert resident() - memory < 8 << 20


def test_plans_are_freed():
    def plans():
        for k in range(1, 15):
            kfmgen.dct4(np.ones(2**k))

    def run(task, times):
        for _ in range(times):
            thread = threading.Thread(target=task)
            thread.start()
            thread.join()

    def grown(task):
        run(task, 20)
        memory = resident()
        run(task, 400)
        return resident() - memory

    # 400 kB of plans in each thread; an emulator keeps some of any thread.
    assert grown(plans) < grown(lambda: None) + (16 << 20)


@pytest.mark.parametrize("module", ["kfmgen", "kfmgen._transforms", "kfmgen._half_spectrum",
                                    "kfmgen._scipy"])
def test_examples(module):
    result = doctest.testmod(sys.modules[module])
    assert result.failed == 0
    assert result.attempted > 0 or module == "kfmgen"


def test_the_library_under_test():
    wanted = os.environ.get("KFM_LIBRARY")
    if wanted:
        assert os.path.samefile(loaded("libkfmgenw7")._name, wanted)
