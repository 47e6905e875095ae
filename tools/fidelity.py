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
import subprocess
import sys
import tempfile
import textwrap
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass, field
from fractions import Fraction
from pathlib import Path

SECONDS = 2


def run(*command, folder=None):
    return subprocess.run([str(part) for part in command], cwd=folder, capture_output=True,
                          text=True, errors='replace', stdin=subprocess.DEVNULL)


def ffmpeg(*arguments, folder=None):
    done = run('ffmpeg', '-nostdin', '-hide_banner', '-v', 'error', '-y', *arguments, folder=folder)
    if done.returncode != 0:
        sys.exit(f'ffmpeg {" ".join(map(str, arguments))}\n{done.stderr}')


# Sources ------------------------------------------------------------------------------------------

TRUTH = 'truth.mkv'  # what every film shows: lossless, upright, square pixels, SDR, 4:4:4
SOUND = 'sound.wav'  # what every film plays: 48000 Hz stereo
SUBTITLES = '1\n00:00:00,500 --> 00:00:02,000\nHello\n'
CHAPTERS = (';FFMETADATA1\ntitle=A film\ncreation_time=2020-05-17T10:11:12.000000Z\n'
            '[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\nEND=1000\ntitle=One\n'
            '[CHAPTER]\nTIMEBASE=1/1000\nSTART=1000\nEND=2000\ntitle=Two\n')
H264 = '-c:v libx264 -preset veryfast -crf 14 -pix_fmt yuv420p'
HEVC10 = '-c:v libx265 -preset ultrafast -crf 12 -pix_fmt yuv420p10le -tag:v hvc1'
TO_709 = 'scale=out_color_matrix=bt709,format=yuv420p'
TAGS_709 = '-color_primaries bt709 -color_trc bt709 -colorspace bt709 -color_range tv'
LINEAR = ('scale=out_color_matrix=bt709,format=yuv444p,zscale=pin=bt709:tin=bt709:min=bt709:rin=tv:'
          'p=bt709:m=gbr:t=linear:npl=203,format=gbrpf32le')


def hdr(transfer):
    return (f'{LINEAR},zscale=pin=bt709:tin=linear:min=gbr:p=bt2020:t={transfer}:m=bt2020nc:r=tv:'
            'npl=203,format=yuv420p10le')


HDR10 = ('-x265-params log-level=error:colorprim=bt2020:transfer=smpte2084:colormatrix=bt2020nc:'
         'master-display=G(13250,34500)B(7500,3000)R(34000,16000)WP(15635,16450)L(10000000,50):'
         'max-cll=1000,400')
HLG = '-x265-params log-level=error:colorprim=bt2020:transfer=arib-std-b67:colormatrix=bt2020nc'


@dataclass
class Source:
    name: str
    file: str
    arguments: str  # of ffmpeg, the truth as input 0 and the sound as input 1
    filters: str = ''
    turn: int = 0  # degrees that players turn the picture by
    is_film: bool = True
    is_hdr: bool = False
    is_interlaced: bool = False
    is_damaged: bool = False
    is_still: bool = False
    inputs: list = field(default_factory=list)


SOURCES = [
    Source('Film of a camera, H.264', 'camera.mp4',
           f'{H264} {TAGS_709} -c:a aac -b:a 160k', TO_709),
    Source('The same, untagged SD', 'untagged.avi', '-c:v mpeg4 -q:v 2 -c:a mp3 -b:a 192k',
           'scale=720:404:out_color_matrix=bt601,format=yuv420p'),
    Source('Upright film of a phone', 'phone.mov',
           f'{H264} {TAGS_709} -c:a aac -metadata location=+48.1371+011.5754/',
           f'transpose=clock,{TO_709}', turn=90),
    Source('Film of a phone with a variable rate', 'variable.mp4',
           f'{H264} {TAGS_709} -c:a aac -fps_mode vfr', f"select='gt(mod(n\\,5)\\,1)',{TO_709}"),
    Source('10 bits, HEVC', 'ten.mkv', f'{HEVC10} {TAGS_709} -x265-params log-level=error -c:a flac',
           'scale=out_color_matrix=bt709,format=yuv420p10le'),
    Source('HDR10', 'hdr10.mp4', f'{HEVC10} {HDR10} -c:a aac -b:a 160k', hdr('smpte2084'),
           is_hdr=True),
    Source('HLG', 'hlg.mp4', f'{HEVC10} {HLG} -c:a aac -b:a 160k', hdr('arib-std-b67'),
           is_hdr=True),
    Source('Interlaced broadcast, MPEG-2', 'broadcast.ts',
           '-c:v mpeg2video -q:v 2 -flags +ilme+ildct -top 1 -c:a ac3 -b:a 384k -ac 6',
           'scale=720:576:out_color_matrix=bt601,format=yuv420p,tinterlace=interleave_top,'
           'setsar=64/45', is_interlaced=True),
    Source('DVD', 'dvd.vob', '-c:v mpeg2video -q:v 2 -c:a ac3 -b:a 384k -ac 6 -aspect 16:9',
           'scale=720:576:out_color_matrix=bt601,format=yuv420p,setsar=64/45'),
    Source('Interlaced, the order untold', 'fields.mkv',
           '-c:v ffv1 -c:a pcm_s16le',
           'scale=720:576:out_color_matrix=bt601,format=yuv420p,tinterlace=interleave_top,'
           'setsar=64/45,setfield=auto', is_interlaced=True),
    Source('Screen recording in RGB', 'screen.mkv',
           '-c:v libx264rgb -qp 0 -preset ultrafast -c:a pcm_s16le', 'format=rgb24'),
    Source('Picture with alpha, ProRes 4444', 'alpha.mov',
           f'-c:v prores_ks -profile:v 4444 {TAGS_709} -c:a pcm_s24le',
           'scale=out_color_matrix=bt709,format=yuva444p10le'),
    Source('Film with two languages, subtitles, chapters and a font', 'rich.mkv',
           f'-map 0:v -map 1:a -map 1:a -map 2:s -map 2:s -map_metadata 3 {H264} {TAGS_709} '
           '-c:a aac -c:s:0 subrip -c:s:1 ass -metadata:s:a:0 language=eng '
           '-metadata:s:a:1 language=fra -metadata:s:a:1 title=Commentaire '
           '-metadata:s:s:0 language=eng -metadata:s:s:1 language=deu '
           '-attach font.ttf -metadata:s:t mimetype=font/ttf', TO_709,
           inputs=['subtitles.srt', 'chapters.txt']),
    Source('Small film of low quality', 'small.mp4',
           f'-c:v libx264 -b:v 200k -pix_fmt yuv420p {TAGS_709} -c:a aac -ac 1 -b:a 48k',
           'scale=426:240:out_color_matrix=bt709,format=yuv420p'),
    Source('Silent film', 'silent.mp4', f'-an {H264} {TAGS_709}', TO_709),
    # In a container that says how long the whole is.
    Source('Film that breaks off', 'broken.mkv', f'{H264} {TAGS_709} -c:a aac', TO_709,
           is_damaged=True),
    Source('Song, MP3 with cover', 'song.mp3',
           '-map 1:a -map 2:v -c:a libmp3lame -b:a 192k -c:v copy -disposition:v attached_pic '
           '-metadata title=Song -metadata artist=Somebody', is_film=False, inputs=['cover.png']),
    Source('Song, AAC', 'song.m4a', '-map 1:a -c:a aac -b:a 256k -metadata title=Song',
           is_film=False),
    Source('Studio recording, FLAC 24 bits 96000 Hz', 'studio.flac',
           '-map 1:a -ar 96000 -sample_fmt s32 -bits_per_raw_sample 24 -c:a flac', is_film=False),
    Source('Surround recording, WAV 24 bits 5.1', 'surround.wav',
           '-map 1:a -ac 6 -c:a pcm_s24le', is_film=False),
    Source('Still picture', 'still.png', '-map 0:v -frames:v 1 -c:v png', 'format=rgb24',
           is_still=True),
]


def make_sources(folder):
    """The files that all sources are made of, and the sources."""
    ffmpeg('-f', 'lavfi', '-i', f'testsrc2=s=1280x720:r=50:d={SECONDS}', '-vf',
           'scale=640:360,gblur=1.2,scale=1280:720,format=gbrp', '-c:v', 'ffv1', TRUTH, folder=folder)
    ffmpeg('-f', 'lavfi', '-i', f'sine=440:r=48000:d={SECONDS}', '-f', 'lavfi', '-i',
           f'sine=660:r=48000:d={SECONDS}', '-filter_complex', 'join=inputs=2', '-c:a', 'pcm_s16le',
           SOUND, folder=folder)
    (folder / 'subtitles.srt').write_text(SUBTITLES)
    (folder / 'chapters.txt').write_text(CHAPTERS)
    (folder / 'font.ttf').write_bytes(b'\0\1\0\0' + bytes(64))
    ffmpeg('-i', TRUTH, '-frames:v', '1', '-vf', 'scale=300:-2,format=rgb24', 'cover.png',
           folder=folder)
    for source in SOURCES:
        inputs = [part for path in [TRUTH, SOUND] + source.inputs for part in ('-i', path)]
        filters = [] if not source.is_film else [
            '-vf', source.filters if source.is_interlaced else f'fps=25,{source.filters}']
        written = 'unturned.mov' if source.turn else source.file
        ffmpeg(*inputs, *filters, *source.arguments.split(), '-t', SECONDS, written, folder=folder)
        if source.turn:
            ffmpeg('-i', written, '-c', 'copy', '-metadata:s:v:0', f'rotate={source.turn}',
                   source.file, folder=folder)
        if source.is_damaged:
            whole = (folder / source.file).read_bytes()
            (folder / source.file).write_bytes(whole[:len(whole) // 2])


# Formats ------------------------------------------------------------------------------------------


@dataclass
class Format:
    name: str
    preset: str
    is_film: bool = True
    has_own_rate: bool = False   # can't have each rate, or each frame at its own time
    can_be_combed: bool = False  # fields are kept, or dithering looks like combs
    tells_colours: bool = True
    least_psnr: int = 30


FORMATS = [
    Format('MP4', 'Video_MP4_001'), Format('MP4 720p', 'Video_MP4_005'),
    Format('HEVC 1080p', 'Video_HEVCMP4_004'), Format('MOV', 'Video_MOV_001'),
    Format('MKV', 'Video_MKV_001'), Format('WebM 720p', 'Video_WEBM_005'),
    Format('AVI', 'Video_AVI_001', has_own_rate=True, tells_colours=False),
    Format('ProRes', 'Video_PRORESMOV_001'),
    Format('VOB', 'Video_VOB_001', has_own_rate=True, can_be_combed=True, tells_colours=False,
           least_psnr=26),
    Format('GIF', 'Video_GIF_001', has_own_rate=True, can_be_combed=True, tells_colours=False,
           least_psnr=18),
    Format('iPhone 4K', 'Device_APPLE_001'), Format('YouTube 720p', 'SocialVideo_YOUTUBE_004'),
    Format('MP3', 'Audio_MP3_001', is_film=False), Format('M4A', 'Audio_M4A_001', is_film=False),
    Format('FLAC', 'Audio_FLAC_001', is_film=False), Format('WAV', 'Audio_WAV_001', is_film=False),
]
LEAST_PSNR_OF_HDR = 20
MOST_COMBED_FRAMES = 4

# Results ------------------------------------------------------------------------------------------


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


# Tables -------------------------------------------------------------------------------------------


BEGIN, END = '<!-- written by tools/fidelity.py -->', '<!-- end of what it writes -->'
KEPT, CHANGED, NONE, REFUSED, LEFT_OUT = '=', '~', '·', '×', '!'
LEGEND = f"""A run with ffmpeg {{version}}. What became of video and audio:

- `{KEPT}` kept as it is, or every bit of it
- `{CHANGED}` encoded
- `{NONE}` there is none
- `{REFUSED}` refused, and said why
- `{LEFT_OUT}` something was left out or is missing, and said so

"""
DETAILS = """
Formats with the same result share a row. What is there "as is" was copied, and "every bit" is in
another lossless codec. The likeness in dB is the PSNR of the decoded result to the picture that the
source was made from, or to the source itself where it stays HDR: from 35 dB on few people see a
difference. A picture whose HDR was mapped to ordinary colours is another picture, of 20 dB and more.
"""


def row(cells):
    return f'| {" | ".join(cells)} |'


def rows(heads, lines):
    return '\n'.join([row(heads), '|' + '---|' * len(heads), *map(row, lines)]) + '\n'


def sign(text):
    return NONE if not text else KEPT if text.endswith(('as is', 'every bit')) else CHANGED


def signs(cell):
    if cell.is_refused:
        return REFUSED
    return f'{sign(cell.video)} {sign(cell.audio)}{" " + LEFT_OUT if cell.said else ""}'


def overview(results):
    return rows(['Source'] + [format_.name for format_ in FORMATS],
                [[name, *map(signs, cells)] for name, cells in results.items()])


def details(name, cells):
    formats_with = {}
    for cell in cells:
        said = '; '.join(cell.said).replace('|', '\\|')
        formats_with.setdefault((cell.video, cell.audio, cell.besides, said), []).append(
            cell.format.name)
    return f'### {name}\n\n' + rows(
        ['Format', 'Video', 'Audio', 'Besides', 'Said'],
        [[', '.join(formats), *texts] for texts, formats in formats_with.items()])


def report(results):
    version = run('ffmpeg', '-version').stdout.split()[2]
    names = ', '.join(f'{format_.name} `{format_.preset}`' for format_ in FORMATS)
    presets = textwrap.fill(f'The presets: {names}.', 100)
    return (LEGEND.format(version=version) + overview(results) + f'\n{presets}\n' + DETAILS + ''.join('\n' + details(*result) for result in results.items()))


def write(page, text):
    """Replaces what stands between the markers of the page."""
    before, begin, rest = page.read_text(encoding='utf-8').partition(BEGIN)
    _, end, after = rest.partition(END)
    if not end:
        sys.exit(f'{page} lacks the lines "{BEGIN}" and "{END}"')
    page.write_text(f'{before}{begin}\n\n{text}\n{end}{after}', encoding='utf-8')


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
