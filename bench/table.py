"""Runs every benchmark of a build folder and prints one Markdown table."""

import json
import os
import platform
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True
import programs

TITLES = {
    "draw/after_tasks/0": "draw of a task, fresh training",
    "draw/after_tasks/10": "draw of a task, after 10 tasks",
    "draw/after_tasks/1000": "draw of a task, after 1,000 tasks",
    "draw/after_tasks/100000": "draw of a task, after 100,000 tasks",
    "draw/and_weigh": "draw of a task, its weight and the new pool",
    "draw/melody": "draw of a task with a melody",
    "staff/task_on_pixels": "a whole written task drawn on a grid of pixels",
    "staff/drop_to_paint": "drop on the staff to the painted window, 2560x1000 pixels",
    "staff/drag_over_to_paint": "drag into the next column to the painted preview, 2560x1000 pixels",
    "setup/choose/15/real_time": "click on a scale in the lists to the painted form, 2560x1400 pixels",
    "setup/start_training/1/iterations:500": "start of a training of 20 rows",
    "setup/start_training/2/iterations:500": "start of a saved training of 20 rows",
    "setup/read_settings/0": "file of settings of 511 KB, many entries",
    "setup/read_settings/1": "file of settings of 511 KB, one entry of many values",
    "setup/read_settings/2": "file of settings of 511 KB, short elements that say nothing",
    "setup/read_settings/3": "file of settings of 511 KB, refused for its end",
    "setup/read_settings/4": "file of settings of 511 KB, refused, deeply nested",
    "setup/read_settings/5": "file of settings of 511 KB, refused, no XML",
    "setup/print_result": "a result with fifteen scales printed to a file",
    "setup/apply_settings/20/iterations:3": "applying a file of settings, list of 20 values",
    "setup/apply_settings/1000/iterations:3": "applying a file of settings, list of 1,000 values",
    "tasks/one_long_run": "simulated tasks, try-out of 20,000",
    "tasks/trainings": "simulated tasks, trainings",
    "tasks/exams": "simulated tasks, exams",
    "tasks/write_heard": "simulated tasks, heard and written",
    "tasks/write_named": "simulated tasks, named and written",
    "tasks/write_trainings": "simulated tasks, trainings of writing",
    "tasks/identify_seen": "simulated tasks, seen and named",
    "tasks/bare_trainings": "simulated tasks without forms, trainings",
    "tasks/bare_write_trainings": "simulated tasks without forms, trainings of writing",
    "record/save_10000_lessons": "saving a record of 10,000 lessons",
}


def speed_rows(program, quick):
    command = [program, "--benchmark_format=json", "--benchmark_repetitions=5",
               "--benchmark_report_aggregates_only=true",
               f"--benchmark_min_time={0.05 if quick else 0.3}"]
    output = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True)
    for row in json.loads(output.stdout)["benchmarks"]:
        if row.get("aggregate_name") != "median":
            continue
        title = TITLES.get(row["run_name"], row["run_name"])
        clock, how = "cpu_time", "processor time, median of 5"
        if row["run_name"].endswith("/real_time"):
            clock, how = "real_time", "median of 5"
        if "peak_MB" in row:
            how += f"; {row['peak_MB']:.1f} MB of memory at its peak"
        digits = 0 if row["time_unit"] == "ns" else 1 if row[clock] >= 0.1 else 3
        time = f"{row[clock]:,.{digits}f} {row['time_unit']}"
        rate = row.get("items_per_second")
        if rate:
            yield title, f"{rate:,.0f} a second", f"processor time; {time} a run, median of 5"
        else:
            yield title, time, how


def sound_rows(build):
    """The worst of what sound_accuracy tells of each tuning."""
    program = build / "bin/sound_accuracy"
    if not program.exists():
        return
    output = subprocess.run([program], stdout=subprocess.PIPE, text=True)
    if output.returncode != 0:
        yield "sound", "not measured", "sound_accuracy failed"
        return
    worst = {}
    for line in output.stdout.splitlines()[1:]:
        name, *numbers = line[:22].strip(), *map(float, line[22:].split())
        onset, cents = worst.get(name, (0.0, 0.0))
        worst[name] = max(onset, abs(numbers[2])), max(cents, abs(numbers[3]))
    for name, (onset, cents) in worst.items():
        yield f"notes, {name}", f"{onset:.2f} ms, {cents:.2f} cent", "worst onset and pitch"


def all_rows(build, quick):
    for program in ("melvora_bench", "setup_bench"):
        yield from speed_rows(build / "bin" / program, quick)
    yield from programs.rows(build, quick)
    yield from sound_rows(build)


def processor():
    for line in Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.partition(":")[2].strip()
    return platform.machine()


def main():
    build = Path(sys.argv[1]).resolve()
    quick = "--quick" in sys.argv[2:]
    print(f"{processor()}, {os.cpu_count()} cores, load {os.getloadavg()[0]:.1f}\n")
    print("| what | measured | how |\n|---|---|---|", flush=True)
    for row in all_rows(build, quick):
        print("| " + " | ".join(row) + " |", flush=True)


main()
