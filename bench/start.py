#!/usr/bin/env python3
"""start.py BUILD_DIRECTORY [RUNS]: the start of the window beside that of an empty Qt window.

Prints the median time from start to first drawn frame, the memory that is a program's own share (PSS), and how
often its threads wake up in ten idle seconds. Each run has a fresh X server and message bus, and a home where the
program was started once before: the very first start also writes the settings. The two programs start in turn, so that
whatever else the machine does slows both. A wake-up is a voluntary context switch.
"""

import contextlib
import os
import pathlib
import signal
import statistics
import subprocess
import sys
import tempfile
import time

IDLE_SECONDS = 10
STARTS = 5  # of each program in a run


def threads(pid):
    return (pathlib.Path(f"/proc/{pid}/task") / task / "status" for task in os.listdir(f"/proc/{pid}/task"))


def wake_ups(pid):
    total = 0
    for status in threads(pid):
        for line in status.read_text().splitlines():
            if line.startswith("voluntary_ctxt_switches"):
                total += int(line.split()[1])
    return total


def proportional_memory(pid):
    for line in pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines():
        if line.startswith("Pss:"):
            return int(line.split()[1]) / 1024
    raise RuntimeError("the kernel does not tell the memory")


def first_frame(build, program, environment):
    """Starts `program`; its process id and the milliseconds until it had drawn."""
    report = subprocess.run([build / "bench" / "bench_first_frame", program], env=environment, check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    pid, milliseconds = report.split()
    return int(pid), float(milliseconds)


def is_running(pid):
    try:
        return "State:\tZ" not in pathlib.Path(f"/proc/{pid}/status").read_text()
    except FileNotFoundError:
        return False


def end(pid):
    os.kill(pid, signal.SIGTERM)
    while is_running(pid):
        time.sleep(0.01)


@contextlib.contextmanager
def session():
    """The environment of programs with an X server, a message bus and a home of their own."""
    with tempfile.TemporaryDirectory() as home:
        read_end, write_end = os.pipe()
        server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x900x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as answer:  # the whole line: the server dies when the rest finds no reader
            display = answer.readline().strip()
        bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"],
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        try:
            yield dict(os.environ, DISPLAY=f":{display}", HOME=home, XDG_CONFIG_HOME=home, XDG_RUNTIME_DIR=home,
                       QT_QPA_PLATFORM="xcb", DBUS_SESSION_BUS_ADDRESS=bus.stdout.readline().strip())
        finally:
            for server_process in (bus, server):
                server_process.terminate()
                server_process.wait()


@contextlib.contextmanager
def started(build, program, environment):
    """`program` with its first frame drawn: its process id and the milliseconds until then."""
    pid, milliseconds = first_frame(build, program, environment)
    try:
        yield pid, milliseconds
    finally:
        end(pid)


def start_times(build, programs, environment):
    """Of each program, the milliseconds of a few starts."""
    times = {name: [] for name in programs}
    order = list(programs)
    for _ in range(STARTS + 1):
        for name in order:
            with started(build, programs[name], environment) as (_, milliseconds):
                times[name].append(milliseconds)
        order.reverse()  # the server may still clean up behind the one before
    return {name: of_program[1:] for name, of_program in times.items()}


def memory_and_wake_ups(build, program, environment):
    with started(build, program, environment) as (pid, _):
        time.sleep(2)
        memory = proportional_memory(pid)
        before = wake_ups(pid)
        time.sleep(IDLE_SECONDS)
        return memory, wake_ups(pid) - before


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 5
    programs = {"vantorel": build / "vantorel", "empty Qt window": build / "bench" / "bench_empty_window"}
    times = {name: [] for name in programs}
    for run in range(runs):
        with session() as environment:
            for name, milliseconds in start_times(build, programs, environment).items():
                times[name] += milliseconds
            if run == runs - 1:
                idle = {name: memory_and_wake_ups(build, programs[name], environment) for name in programs}
    print(f"{'':18}{'first frame':>14}{'memory':>14}{'wake-ups/10 s':>16}")
    for name, (memory, wakes) in idle.items():
        print(f"{name:18}{statistics.median(times[name]):11.1f} ms{memory:10.1f} MiB{wakes:16d}")
    ours, empty = programs
    print(f"{'ratio':18}{statistics.median(times[ours]) / statistics.median(times[empty]):13.2f}x"
          f"{idle[ours][0] / idle[empty][0]:13.2f}x")


if __name__ == "__main__":
    main()
