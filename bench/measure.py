# SPDX-License-Identifier: MIT
"""Measures the programs against the bare tools, alternating, and prints medians and ratios."""
import json
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

BUILD = Path(sys.argv[1])
BUNDLE = BUILD / "VideoConverter.app"
CLI = BUNDLE / "Contents/MacOS/video-converter-cli"
FAKE = BUILD / "tests/fixtures/fake-tool"


def peak_memory(pid, stop, result):
    """Peak resident KiB of one process alone, its children not counted."""
    while not stop.is_set():
        try:
            for line in Path(f"/proc/{pid}/status").read_text().splitlines():
                if line.startswith("VmHWM:"):
                    result["kib"] = int(line.split()[1])
        except OSError:
            return
        time.sleep(0.005)


def run(command, env=None, check=True):
    """Wall and processor seconds of a command with all its children, and its own peak memory."""
    started = time.perf_counter()
    process = subprocess.Popen([str(c) for c in command], env={**os.environ, **(env or {})}, stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    result, stop = {"kib": 0}, threading.Event()
    watcher = threading.Thread(target=peak_memory, args=(process.pid, stop, result))
    watcher.start()
    _, status, usage = os.wait4(process.pid, 0)
    wall = time.perf_counter() - started
    stop.set()
    watcher.join()
    process.returncode = os.waitstatus_to_exitcode(status)
    if check and process.returncode != 0:
        sys.exit(f"failed with {process.returncode}: {command}")
    return wall, usage.ru_utime + usage.ru_stime, result["kib"]


def compare(name, ours, bare, rounds):
    """Alternates both, so that noise of the machine meets them alike; `bare` may be several commands in a row."""
    ours_runs, bare_runs = [], []
    for _ in range(rounds):
        ours_runs.append(run(ours))
        parts = [run(command, check=False) for command in bare]
        bare_runs.append([sum(column) for column in zip(*parts)])
    ours_wall, ours_cpu = (statistics.median(r[i] for r in ours_runs) for i in (0, 1))
    bare_wall, bare_cpu = (statistics.median(r[i] for r in bare_runs) for i in (0, 1))
    peak = max(r[2] for r in ours_runs)
    print(f"{name:34} wall {ours_wall:7.3f} s / {bare_wall:7.3f} s = {ours_wall / bare_wall:5.3f} "
          f"({(ours_wall - bare_wall) * 1000:+6.0f} ms)   cpu {ours_cpu / bare_cpu:5.3f}   "
          f"peak of the driving process {peak / 1024:.1f} MiB")


def planned(entry, source, dest):
    """The tool's command line for a conversion."""
    plan = json.loads(subprocess.check_output([CLI, "plan", "--to", entry, source, dest, "--json"]))
    return ["ffmpeg", *plan[entry]]


def fake_bundle(folder):
    copy = folder / "Fake.app"
    (copy / "Contents/MacOS").mkdir(parents=True)
    (copy / "Contents/ffmpeg").mkdir()
    shutil.copy(CLI, copy / "Contents/MacOS")
    (copy / "Contents/ffmpeg/ffprobe").symlink_to(shutil.which("ffprobe"))
    (copy / "Contents/ffmpeg/ffmpeg").symlink_to(FAKE)
    return copy


def video(path, seconds, size, preset):
    subprocess.run(["ffmpeg", "-loglevel", "error", "-y", "-f", "lavfi", "-i", f"testsrc2=s={size}:r=25", "-f", "lavfi",
                    "-i", "sine=r=48000", "-t", str(seconds), "-c:v", "libx264", "-preset", preset, "-pix_fmt", "yuv420p",
                    "-c:a", "aac", path], check=True, stdin=subprocess.DEVNULL)


def engine(folder):
    source, out = folder / "video.mp4", folder / "out"
    video(source, 100, "1920x1080", "ultrafast")
    print("Headless command against the bare tool with the same arguments")
    convert = [CLI, "convert", "--overwrite", source, "-o"]
    compare("re-encode to 1280 x 720", [*convert, f"{out}.mp4", "--to", "MP4 HD 720"],
            [planned("MP4 HD 720", source, f"{out}.mp4")], 3)
    bare_probe = ["ffprobe", "-v", "quiet", "-print_format", "json", "-show_format", "-show_streams", source]
    bare_copy = planned("MKV", source, f"{out}.mkv")
    copy = [*convert, f"{out}.mkv", "--to", "MKV"]
    compare("stream copy, 100 s of 1080p", copy, [bare_probe, bare_copy], 31)
    bare_cover = ["ffmpeg", "-an", "-ss", "00:00:40", "-i", source, folder / "cover.jpg", "-y"]
    compare("probe with cover", [CLI, "probe", source, "--json"], [bare_probe, bare_cover], 15)

    flooding = fake_bundle(folder) / "Contents/MacOS/video-converter-cli"
    _, _, kib = run([flooding, "convert", "--to", "MP4", "--overwrite", source, "-o", f"{out}.mp4"],
                    {"FAKE_TOOL_SCRIPT": "output|print:Duration: 00:01:40.00, start: 0\\n|flood:200000000|reports:1:0"}, check=False)
    print(f"{'tool that writes 200 MB':34} peak of the driving process {kib / 1024:.1f} MiB")

    programs = BUILD / "bench/Bench.app/Contents/MacOS"
    tools = programs.parent / "ffmpeg"
    tools.mkdir(exist_ok=True)
    link = tools / "ffmpeg"
    link.unlink(missing_ok=True)
    link.symlink_to(FAKE)
    confined, plain = map(float, subprocess.check_output([programs / "bench-tool-launch", folder], text=True,
                                                         env={**os.environ, "FAKE_TOOL_SCRIPT": "exit:0"}).split())
    print(f"{'sandbox of a tool that does nothing':34} {confined:.2f} ms / plain {plain:.2f} ms = +{confined - plain:.2f} ms a run")
    print("Reading loop, processor time")
    for line in subprocess.check_output([programs / "bench-reading-loop"], text=True).splitlines():
        written, seen, microseconds = line.split()
        cost = f"{microseconds} us a report" if float(microseconds) > 0 else "less than runs differ by"
        print(f"{written:>10} reports written, read in {seen:>5} pieces: {cost}")


def main():
    wanted = sys.argv[2:] or ["engine", "many", "window"]
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        if "engine" in wanted:
            engine(folder)
        if "many" in wanted:
            import many
            many.measure(CLI, folder, video)
        if "window" in wanted:
            import window
            window.measure(BUILD, folder)


if __name__ == "__main__":
    main()
