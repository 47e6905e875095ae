"""The tables of fidelity.py."""

import sys
import textwrap

from fidelity_sources import FORMATS, run

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
    return (LEGEND.format(version=version) + overview(results) + f'\n{presets}\n' + DETAILS +
            ''.join('\n' + details(*result) for result in results.items()))


def write(page, text):
    """Replaces what stands between the markers of the page."""
    before, begin, rest = page.read_text(encoding='utf-8').partition(BEGIN)
    _, end, after = rest.partition(END)
    if not end:
        sys.exit(f'{page} lacks the lines "{BEGIN}" and "{END}"')
    page.write_text(f'{before}{begin}\n\n{text}\n{end}{after}', encoding='utf-8')
