#!/usr/bin/env python3
"""Converts many short audio files with `vexconvert convert`, and with `xargs` running the commands
that `vexconvert convert --dry-run` prints, and compares how long both take.

    benchmarks/bench_batch.py build/release/host/vexconvert     # takes two minutes

Prints wall and processor time of each round and the ratios of the medians. Exits with 1 if
vexconvert takes more than 1.15 times the wall time or 1.25 times the processor time.
"""

import argparse
import os
import resource
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from statistics import median

MOST_WALL = 1.15
MOST_PROCESSOR = 1.25


def make_songs(folder, count, seconds):
    """Short WAVs with different notes."""
    for number in range(count):
        subprocess.run(['ffmpeg', '-nostdin', '-v', 'error', '-f', 'lavfi', '-i',
                        f'sine=frequency={200 + number}:duration={seconds}', '-ac', '2',
                        folder / f'song{number:03}.wav'], check=True)
    return sorted(folder.glob('*.wav'))


def processor_time():
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    return used.ru_utime + used.ru_stime


def timed(command, **options):
    """Seconds of wall and of processor time."""
    begin, processor = time.monotonic(), processor_time()
    done = subprocess.run(command, stdout=subprocess.DEVNULL, check=False, **options)
    if done.returncode != 0:
        sys.exit(f'{command[0]} failed with {done.returncode}')
    return time.monotonic() - begin, processor_time() - processor


def take_results(songs):
    """Removes the results; every song must have one."""
    for song in songs:
        result = song.with_suffix('.mp3')
        if not result.is_file() or result.stat().st_size == 0:
            sys.exit(f'{result} is missing or empty')
        result.unlink()


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('vexconvert', type=Path)
    parser.add_argument('--preset', default='Audio_MP3_003')
    parser.add_argument('--files', type=int, default=200)
    parser.add_argument('--seconds', type=int, default=20, help='length of each file')
    parser.add_argument('--rounds', type=int, default=3)
    options = parser.parse_args()

    with tempfile.TemporaryDirectory() as folder:
        songs = make_songs(Path(folder), options.files, options.seconds)
        convert = [options.vexconvert, '--config', Path(folder, 'config'), 'convert', *songs,
                   '--preset', options.preset]
        commands = subprocess.run([*convert, '--dry-run'], capture_output=True, text=True,
                                  check=True).stdout
        xargs = ['xargs', '-d', '\\n', f'-P{len(os.sched_getaffinity(0))}', '-I{}', 'sh', '-c', '{}']
        times = {'xargs': [], 'vexconvert': []}
        for number in range(options.rounds):
            for name, measured in (
                    ('xargs', lambda: timed(xargs, input=commands.encode())),
                    ('vexconvert', lambda: timed(convert))):
                wall, processor = measured()
                take_results(songs)
                times[name].append((wall, processor))
                print(f'round {number + 1}: {name:10} {wall:6.1f} s wall {processor:6.1f} s '
                      'processor', flush=True)

    def ratio(which):
        return (median(each[which] for each in times['vexconvert'])
                / median(each[which] for each in times['xargs']))

    wall, processor = ratio(0), ratio(1)
    print(f'wall      {wall:.2f} of xargs, at most {MOST_WALL}')
    print(f'processor {processor:.2f} of xargs, at most {MOST_PROCESSOR}')
    sys.exit(1 if wall > MOST_WALL or processor > MOST_PROCESSOR else 0)


if __name__ == '__main__':
    main()
