"""The sources that fidelity.py converts, and the formats that it converts them into."""

import subprocess
import sys
from dataclasses import dataclass, field

SECONDS = 2


def run(*command, folder=None):
    return subprocess.run([str(part) for part in command], cwd=folder, capture_output=True,
                          text=True, errors='replace', stdin=subprocess.DEVNULL)


def ffmpeg(*arguments, folder=None):
    done = run('ffmpeg', '-nostdin', '-hide_banner', '-v', 'error', '-y', *arguments, folder=folder)
    if done.returncode != 0:
        sys.exit(f'ffmpeg {" ".join(map(str, arguments))}\n{done.stderr}')


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
    Format('ProRes', 'Video_PRORESMOV_001', has_own_rate=True),
    Format('VOB', 'Video_VOB_001', has_own_rate=True, can_be_combed=True, tells_colours=False,
           least_psnr=26),
    Format('GIF', 'Video_GIF_001', has_own_rate=True, can_be_combed=True, tells_colours=False,
           least_psnr=18),
    Format('iPhone 4K', 'Device_APPLE_001'), Format('YouTube 720p', 'SocialVideo_YOUTUBE_004'),
    Format('MP3', 'Audio_MP3_001', is_film=False), Format('M4A', 'Audio_M4A_001', is_film=False),
    Format('FLAC', 'Audio_FLAC_001', is_film=False), Format('WAV', 'Audio_WAV_001', is_film=False),
]
