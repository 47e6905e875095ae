#!/usr/bin/env python3
"""Converts generated sources of many kinds into many formats, judges each result by decoding it, and
tells for each source what is kept, changed, dropped and said.

    tools/fidelity.py build/dev/host/vexconvert                             # about ten minutes
    tools/fidelity.py build/dev/host/vexconvert --only HDR                  # sources with that name
    tools/fidelity.py build/dev/host/vexconvert --write docs/fidelity.md    # between its markers

Exits with 1 if a result isn't what someone who knows the field would accept.
"""

import argparse
import json
import re
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from fractions import Fraction
from pathlib import Path

from fidelity_sources import FORMATS, SECONDS, SOURCES, TRUTH, make_sources, run
from fidelity_tables import report, write

LEAST_PSNR_OF_HDR = 20
MOST_COMBED_FRAMES = 4


def probe(path):
    found = run('ffprobe', '-v', 'error', '-print_format', 'json', '-show_format', '-show_streams',
                '-show_chapters', '-count_packets', path).stdout
    facts = json.loads(found or '{}')
    streams = facts.get('streams', [])
    facts['cover'] = [s for s in streams if s['disposition']['attached_pic']]
    for kind in ('video', 'audio', 'subtitle', 'attachment'):
        facts[kind] = [s for s in streams if s['codec_type'] == kind and s not in facts['cover']]
    return facts


def digest(path, stream, *options):
    return run('ffmpeg', '-nostdin', '-v', 'error', '-i', path, '-map', f'0:{stream}', *options,
               '-f', 'md5', '-').stdout


def is_same(path, other, stream):
    """Whether the stream is the source's own: its packets, or what they decode to, are equal."""
    return any(digest(path, stream, *options) == digest(other, stream, *options)
               for options in (['-c', 'copy'], []))


def as_shown(path, pixels):
    """The filters that turn a file's video into pixels as players do, which take untagged video for
    BT.709 if it is HD, and for BT.601 if it isn't."""
    video = probe(path)['video'][0]
    is_untagged = video.get('color_space', 'unknown') == 'unknown'
    matrix = 'bt709' if video['height'] > 576 else 'bt601'
    guessed = f':in_color_matrix={matrix}' if is_untagged else ''
    return f'scale=640:360:flags=bicubic{guessed},setsar=1,format={pixels}'


def psnr(result, reference, pixels='gbrp'):
    log = run('ffmpeg', '-nostdin', '-hide_banner', '-i', result, '-i', reference, '-lavfi',
              f'[0:v]{as_shown(result, pixels)}[a];[1:v]{as_shown(reference, pixels)}[b];'
              '[a][b]psnr=shortest=1', '-f', 'null', '-').stderr
    average = re.search(r'average:(\S+)', log)
    return float(average.group(1)) if average else 0.0


def combed_frames(path):
    log = run('ffmpeg', '-nostdin', '-hide_banner', '-i', path, '-frames:v', '75', '-vf', 'idet',
              '-an', '-f', 'null', '-').stderr
    counts = re.search(r'Multi frame detection: TFF: *(\d+) BFF: *(\d+)', log)
    return int(counts.group(1)) + int(counts.group(2)) if counts else 0


def speakers(audio):
    usual = {1: 'mono', 2: 'stereo'}  # not all containers name them
    return audio.get('channel_layout', usual.get(audio['channels'], f'{audio["channels"]} channels'))


class Cell:
    """One source in one format: texts for its row, and what is wrong with it."""

    def __init__(self, source, format_, folder, done, result):
        self.source, self.format = source, format_
        self.folder, self.result = folder, result
        self.path = folder / source.file
        self.said = [line.split(': ', 2)[-1] for line in done.stderr.splitlines()
                     if line.startswith('vexconvert:')]
        self.faults = []
        self.video = self.audio = self.besides = ''
        self.is_refused = result is None
        expected = 1 if source.is_damaged or self.is_refused else 0
        self.expect(done.returncode == expected, f'exit code {done.returncode}')
        if self.is_refused:
            self.video = self.audio = 'refused'
            is_impossible = source.is_still or source.is_film != format_.is_film
            self.expect(is_impossible or (source.name == 'Silent film' and not format_.is_film),
                        'refused')
            self.expect(bool(self.said), 'refused without a word')
            return
        self.before, self.after = probe(self.path), probe(result)
        self.judge_length()
        if format_.is_film:
            self.judge_video()
        self.judge_audio()
        self.judge_besides()

    def expect(self, is_right, fault):
        if not is_right:
            self.faults.append(fault)

    def says(self, word):
        return any(word in line.lower() for line in self.said)

    def judge_length(self):
        seconds = float(self.after['format'].get('duration', 0))
        wanted = float(self.before['format'].get('duration', SECONDS))
        if self.source.is_damaged:
            self.expect(self.says(' of '), 'says nothing of the missing end')
        else:
            self.expect(abs(seconds - wanted) < 0.15, f'lasts {seconds:.2f} s, not {wanted:.2f}')

    def judge_video(self):
        self.expect(bool(self.after['video']), 'no video')
        if not self.after['video'] or not self.before['video']:
            return
        before, after = self.before['video'][0], self.after['video'][0]
        is_kept = (before['codec_name'] == after['codec_name'] and
                   is_same(self.path, self.result, 'v:0'))
        if is_kept:
            self.video = f'{after["codec_name"]}, as is'
            return
        transfer = after.get('color_transfer', '')
        stays_hdr = self.source.is_hdr and transfer == before['color_transfer']
        least = LEAST_PSNR_OF_HDR if self.source.is_hdr and not stays_hdr else self.format.least_psnr
        likeness = 0 if stays_hdr else psnr(self.result, self.folder / TRUTH)
        if likeness < least and (stays_hdr or not self.source.is_hdr):
            # Held against what it was made from: a source's own times and losses aren't ours.
            likeness = psnr(self.result, self.path, 'yuv420p10le' if stays_hdr else 'gbrp')
        rate = f'{float(Fraction(after["avg_frame_rate"])):.4g}'
        self.video = (f'{after["codec_name"]}, {after["width"]}x{after["height"]}, {rate} fps, '
                      f'{after["pix_fmt"]}{", HDR" if stays_hdr else ""}, {likeness:.1f} dB')
        self.expect(likeness >= least, f'only {likeness:.1f} dB')
        if not self.format.has_own_rate:
            frames, wanted = int(after['nb_read_packets']), int(before['nb_read_packets'])
            allowed = [wanted, wanted * 2] if self.source.is_interlaced else [wanted]
            self.expect(self.source.is_damaged or frames in allowed,
                        f'{frames} frames, not {wanted}')
        if not self.format.can_be_combed:
            combed = combed_frames(self.result)
            self.expect(combed <= MOST_COMBED_FRAMES, f'{combed} combed frames')
        if self.format.tells_colours:
            missing = [key for key in ('color_space', 'color_transfer', 'color_primaries')
                       if after.get(key, 'unknown') == 'unknown']
            self.expect(not missing, f'untagged: {", ".join(missing)}')

    def judge_audio(self):
        before, after = self.before['audio'], self.after['audio']
        if not before or self.format.preset.startswith('Video_GIF'):
            self.expect(not after, 'audio out of nothing')
            return
        self.expect(bool(after), 'no audio')
        if not after:
            return
        first, last = before[0], after[0]
        tracks = f'{len(after)} of {len(before)} tracks, ' if len(before) > 1 else ''
        is_whole = (digest(self.path, 'a:0', '-c', 'pcm_s32le') ==
                    digest(self.result, 'a:0', '-c', 'pcm_s32le'))
        is_kept = first['codec_name'] == last['codec_name'] and (
            is_whole or is_same(self.path, self.result, 'a:0'))
        self.audio = tracks + last['codec_name'] + (
            ', as is' if is_kept else ', every bit' if is_whole else
            f', {last["sample_rate"]} Hz, {speakers(last)}')
        self.expect(last['channels'] <= first['channels'], 'more channels than the source')
        self.expect(len(after) == len(before) or self.says('audio'), 'audio tracks dropped silently')

    def judge_besides(self):
        words = {'cover': 'cover', 'chapters': 'chapter'}
        if self.format.is_film:
            words.update({'subtitle': 'subtitle', 'attachment': 'attach'})
        texts = []
        for kind, word in words.items():
            before, after = len(self.before[kind]), len(self.after[kind])
            if before:
                texts.append(f'{after} of {before} {kind.rstrip("s")}{"s" if before > 1 else ""}')
            self.expect(after >= before or self.says(word), f'{kind} dropped silently')
        self.besides = ', '.join(texts)


def convert(program, source, format_, folder):
    target = folder / f'{source.file}-{format_.preset}'
    target.mkdir()
    # A folder of presets each, as several programs don't share one.
    done = run(program, '--config', target / 'config', 'convert', source.file, '--preset',
               format_.preset, '--to', target, folder=folder)
    results = [path for path in target.iterdir() if path.is_file()]
    return Cell(source, format_, folder, done, results[0] if results else None)


def main():
    options = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    options.add_argument('program', type=Path)
    options.add_argument('--only', default='', help='a text in the names of the sources to try')
    options.add_argument('--write', type=Path, metavar='PAGE', help='a page to put the tables into')
    options.add_argument('--keep', type=Path, help='folder for the files, which stay')
    options.add_argument('--jobs', type=int, default=2)
    chosen = options.parse_args()
    if chosen.only and chosen.write:
        options.error('a page needs all sources')
    program = chosen.program.resolve()
    sources = [source for source in SOURCES if chosen.only in source.name]

    with tempfile.TemporaryDirectory() as temporary, ThreadPoolExecutor(chosen.jobs) as pool:
        folder = chosen.keep or Path(temporary)
        folder.mkdir(exist_ok=True)
        make_sources(folder)
        results = {}
        for source in sources:
            results[source.name] = list(pool.map(
                lambda format_, source=source: convert(program, source, format_, folder), FORMATS))
            for cell in results[source.name]:
                if cell.faults:
                    print(f'{source.name} to {cell.format.preset}: {", ".join(cell.faults)}',
                          file=sys.stderr)
    if chosen.write:
        write(chosen.write, report(results))
    else:
        print(report(results))
    faults = sum(bool(cell.faults) for cells in results.values() for cell in cells)
    print(f'{faults} of {len(sources) * len(FORMATS)} results are wrong', file=sys.stderr)
    sys.exit(1 if faults else 0)


if __name__ == '__main__':
    main()
