# SPDX-License-Identifier: MIT
"""The window's figures, on a private X server whose screen is watched through its frame buffer file."""
import mmap
import os
import shutil
import statistics
import subprocess
import time
from pathlib import Path

DISPLAY = ":87"


class Screen:
    """A private X server and D-Bus session; knows whether anything is painted on it."""

    def __init__(self, folder):
        self.folder = folder

    def __enter__(self):
        self.server = subprocess.Popen(["Xvfb", DISPLAY, "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-br", "-fbdir",
                                        self.folder], stderr=subprocess.DEVNULL)
        image = self.folder / "Xvfb_screen0"
        while not image.exists() or image.stat().st_size < 5_000_000:
            time.sleep(0.05)
        time.sleep(0.5)
        self.file = open(image, "rb")
        self.pixels = mmap.mmap(self.file.fileno(), 0, access=mmap.ACCESS_READ)
        home = self.folder / "home"
        home.mkdir(mode=0o700, exist_ok=True)
        self.env = {**os.environ, "DISPLAY": DISPLAY, "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8", "HOME": str(home),
                    "XDG_CONFIG_HOME": str(home), "XDG_RUNTIME_DIR": str(home), "DBUS_SESSION_BUS_ADDRESS": ""}
        self.blank = self.ink()
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()

    def ink(self):
        """Bytes of the picture that are not black, of a sample: to read all of it would keep a core from the program."""
        picture = self.pixels[4096::401]
        return len(picture) - picture.count(b"\0")

    def first_paint(self, command):
        """Seconds until a program has painted its window, and the MiB it holds two seconds later."""
        started = time.perf_counter()
        program = subprocess.Popen([str(c) for c in command], env=self.env, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        while self.ink() - self.blank < 500:
            time.sleep(0.001)
        seconds = time.perf_counter() - started
        time.sleep(2)
        status = Path(f"/proc/{program.pid}/status").read_text()
        mebibytes = int(status.split("VmRSS:")[1].split()[0]) / 1024
        program.kill()
        program.wait()
        while self.ink() - self.blank > 0:
            time.sleep(0.01)
        return seconds, mebibytes


def bench_bundle(build, folder, ffmpeg):
    copy = folder / f"Bench-{Path(ffmpeg).name}.app"
    (copy / "Contents/MacOS").mkdir(parents=True)
    (copy / "Contents/ffmpeg").mkdir()
    shutil.copy(build / "bench/bench-window", copy / "Contents/MacOS")
    (copy / "Contents/ffmpeg/ffprobe").symlink_to(shutil.which("ffprobe"))
    (copy / "Contents/ffmpeg/ffmpeg").symlink_to(ffmpeg)
    return copy / "Contents/MacOS/bench-window"


def seconds(command):
    started = time.perf_counter()
    subprocess.run([str(c) for c in command], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return time.perf_counter() - started


def measure(build, folder):
    video = folder / "short.mp4"
    subprocess.run(["ffmpeg", "-loglevel", "error", "-f", "lavfi", "-i", "testsrc2=s=1920x1080:r=25", "-t", "70", "-c:v", "libx264",
                    "-preset", "ultrafast", "-pix_fmt", "yuv420p", video], check=True, stdin=subprocess.DEVNULL)
    print("The window")
    with Screen(folder) as screen:
        rounds = [(screen.first_paint([build / "VideoConverter.app/Contents/MacOS/video-converter"]),
                   screen.first_paint([build / "bench/bench-empty-window"])) for _ in range(15)]
        ours, empty = (statistics.median(r[i][0] for r in rounds) for i in (0, 1))
        ours_memory, empty_memory = (statistics.median(r[i][1] for r in rounds) for i in (0, 1))
        print(f"{'start to first paint':34} {ours * 1000:.0f} ms / empty window {empty * 1000:.0f} ms = {ours / empty:.2f}")
        print(f"{'idle memory':34} {ours_memory:.1f} MiB, {ours_memory - empty_memory:+.1f} MiB above an empty window")

        cover = bench_bundle(build, folder, shutil.which("ffmpeg"))
        bare = [["ffprobe", "-v", "quiet", "-print_format", "json", "-show_format", "-show_streams", video],
                ["ffmpeg", "-an", "-ss", "00:00:40", "-i", video, folder / "bare.jpg", "-y"]]
        shown, bare_times = [], []
        for _ in range(9):
            shown.append(int(subprocess.check_output([cover, "cover", video], env=screen.env)))
            bare_times.append(sum(seconds(command) for command in bare) * 1000)
        ours, plain = statistics.median(shown), statistics.median(bare_times)
        print(f"{'video to painted cover':34} {ours:.0f} ms / bare tools {plain:.0f} ms = {ours / plain:.2f} ({ours - plain:+.0f} ms)")

        busy = bench_bundle(build, folder, build / "tests/fixtures/fake-tool")
        script = "copy|print:Duration: 00:01:40.00, start: 0\\n|reports:20000:440"
        result = subprocess.check_output([busy, "progress", video, folder], env={**screen.env, "FAKE_TOOL_SCRIPT": script}, text=True)
        stall, share = result.split()
        print(f"{'2 000 reports a second':34} longest stall {stall} ms, {share} % of one core")
