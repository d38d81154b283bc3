# SPDX-License-Identifier: MIT
"""Many videos in one command, against a shell's loop of the bare tool over the same argument lists."""
import shutil
import statistics
import subprocess
import time

TWO_SHELLS = "two shells, with ffprobe"


def planned(cli, entry, source, result):
    return subprocess.check_output([cli, "plan", "--to", entry, source, result], text=True)


def seconds(command, results):
    """Wall seconds; beforehand nothing is there, afterwards every result is."""
    for result in results:
        result.unlink(missing_ok=True)
    started = time.perf_counter()
    subprocess.run(command, check=True, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    wall = time.perf_counter() - started
    assert all(result.stat().st_size > 0 for result in results), f"no result of {command}"
    return wall


def compare(cli, folder, name, entry, extension, video, count, rounds):
    sources = [folder / f"{name} {number}.mp4" for number in range(count)]
    for source in sources:
        shutil.copy(video, source)
    out = folder / "many"
    out.mkdir(exist_ok=True)
    results = [out / f"{source.stem}.{extension}" for source in sources]
    lines = [planned(cli, entry, source, result) for source, result in zip(sources, results)]
    probes = [f"ffprobe -v quiet -print_format json -show_format -show_streams '{source}' >/dev/null\n" for source in sources]
    both = [probe + line for probe, line in zip(probes, lines)]
    halves = " & ".join(f"(\n{''.join(both[half::2])})" for half in (0, 1))
    convert = [cli, "convert", "--to", entry, "-d", out]
    ways = {"loop": ["bash", "-ec", "".join(lines)],
            "-j 1": [*convert, "-j", "1", *sources],
            "-j 2": [*convert, "-j", "2", *sources],
            TWO_SHELLS: ["bash", "-ec", f"{halves} & wait"]}
    taken = {way: [] for way in ways}
    for _ in range(rounds):
        for way, command in ways.items():
            taken[way].append(seconds(command, results))
    # A ratio is of one round, so that what else the machine does meets both of its sides.
    text = "".join(f"   {way} {statistics.median(runs):6.2f} s = "
                   f"{statistics.median(run / loop for run, loop in zip(runs, taken['loop'])):5.3f}" for way, runs in taken.items())
    print(f"{f'{count} {name}':18}{text}", flush=True)
    for path in sources + results:
        path.unlink()


def measure(cli, folder, video):
    """`video` is a function that makes one."""
    print("Many videos in one command against a loop of the bare tool")
    short, large = folder / "60-s.mp4", folder / "10-s.mp4"
    video(short, 60, "1280x720", "ultrafast")
    video(large, 10, "1920x1080", "ultrafast")
    compare(cli, folder, "stream copies", "MKV", "mkv", short, 20, 9)
    compare(cli, folder, "MP3 extractions", "audio", "mp3", short, 20, 5)
    compare(cli, folder, "re-encodes", "MP4 HD 720", "mp4", large, 6, 5)
