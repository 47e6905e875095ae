#!/usr/bin/env python3
"""Draws the icons and images of the screens.

Usage: tools/draw-icons.py

All of them are defined here, so that they share one grid, one stroke and one palette.
The SVG files stay within SVG Tiny 1.2, which is what QtSvg renders. The PNG files come from SVG too
and need rsvg-convert (Debian package librsvg2-bin).
"""

import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LIBRARY_IMAGES = ROOT / "formats/qml/image"
HOST_IMAGES = ROOT / "host/qml/images"

ACCENT = "#8372FF"
MUTED = "#8F8B99"
ROW_ACTION = "#837D90"
VIDEO = "#6656DC"
AUDIO = "#0B8276"
LOSSLESS = "#B05F0A"
DEVICE = "#4A6079"
SITE = "#BE2F7A"

PEN = 'stroke-width="1.25" stroke-linecap="round" stroke-linejoin="round"'

# Letters are paths because fonts differ between machines. A glyph is its width and its strokes:
# the start of each, then a relative path. Vertical and horizontal strokes have integer coordinates,
# so that a label that starts on half a pixel is sharp at 24 x 24.
GLYPHS = {
    "1": (2, [(0, 1.5, "l2 -1.5v6")]),
    "2": (3, [(0, 1.5, "a1.5 1.5 0 0 1 3 0c0 1.5 -3 3 -3 4.5h3")]),
    "3": (3, [(0, 1.5, "a1.5 1.5 0 1 1 1.5 1.5a1.5 1.5 0 1 1 -1.5 1.5")]),
    "4": (3, [(2, 6, "v-6l-2 4h3")]),
    "A": (4, [(0, 6, "l2 -6l2 6"), (0.7, 4, "h2.6")]),
    "B": (2, [(0, 3, "h0.5a1.5 1.5 0 0 1 0 3h-0.5v-6h0.5a1.5 1.5 0 0 1 0 3")]),
    "C": (3, [(3, 1.5, "a1.5 1.5 0 0 0 -3 0v3a1.5 1.5 0 0 0 3 0")]),
    "D": (3, [(0, 0, "v6h1a2 2 0 0 0 2 -2v-2a2 2 0 0 0 -2 -2z")]),
    "E": (3, [(3, 0, "h-3v6h3"), (0, 3, "h2.5")]),
    "F": (3, [(3, 0, "h-3v6"), (0, 3, "h2.5")]),
    "G": (3, [(3, 1.5, "a1.5 1.5 0 0 0 -3 0v3a1.5 1.5 0 0 0 3 0v-1h-1")]),
    "H": (3, [(0, 0, "v6"), (3, 0, "v6"), (0, 3, "h3")]),
    "I": (0, [(0, 0, "v6")]),
    "K": (3, [(0, 0, "v6"), (3, 0, "l-3 3.5"), (1, 2.4, "l2 3.6")]),
    "L": (3, [(0, 0, "v6h3")]),
    "M": (4, [(0, 6, "v-6l2 3.5l2 -3.5v6")]),
    "N": (3, [(0, 6, "v-6l3 6v-6")]),
    "O": (3, [(0, 1.5, "a1.5 1.5 0 0 1 3 0v3a1.5 1.5 0 0 1 -3 0z")]),
    "P": (3, [(0, 6, "v-6h1.5a1.5 1.5 0 0 1 0 3h-1.5")]),
    "R": (3, [(0, 6, "v-6h1.5a1.5 1.5 0 0 1 0 3h-1.5"), (1.5, 3, "l1.5 3")]),
    "S": (3, [(3, 1.5, "a1.5 1.5 0 1 0 -1.5 1.5a1.5 1.5 0 1 1 -1.5 1.5")]),
    "T": (4, [(0, 0, "h4"), (2, 0, "v6")]),
    "U": (3, [(0, 0, "v4.5a1.5 1.5 0 0 0 3 0v-4.5")]),
    "V": (4, [(0, 0, "l2 6l2 -6")]),
    "W": (4, [(0, 0, "v6l2 -3.5l2 3.5v-6")]),
    "X": (4, [(0, 0, "l4 6"), (4, 0, "l-4 6")]),
    "Y": (4, [(0, 0, "l2 3l2 -3"), (2, 3, "v3")]),
    "Z": (3, [(0, 0, "h3l-3 6h3")]),
}
OPEN_ON_THE_LEFT = "4ASTVXY"
OPEN_ON_THE_RIGHT = "4AFKLPTVXY"

PLAY = '<path fill="#fff" d="M9.5 4v7l6 -3.5z"/>'
NOTE = """<path d="M9.5 10v-6l6.5 -1v6"/>
    <circle fill="#fff" cx="8" cy="10" r="1.5"/>
    <circle fill="#fff" cx="14.5" cy="9" r="1.5"/>"""
WAVE = '<path d="M6.5 6.5v2M8.5 4.5v6M10.5 6.5v2M12.5 3.5v8M14.5 5.5v4M16.5 3.5v8M18.5 6.5v2"/>'
PHONE = """<rect x="8.5" y="2.5" width="7" height="10" rx="1.5"/>
    <path d="M11.5 10.5h1"/>"""
TABLET = """<rect x="5.5" y="3.5" width="13" height="8" rx="1.5"/>
    <path d="M16 7.5h0.1"/>"""
TV = """<rect x="5.5" y="2.5" width="13" height="7" rx="1.5"/>
    <path d="M8.5 9.5v2M15.5 9.5v2"/>"""
CONSOLE = """<rect x="5.5" y="3.5" width="13" height="8" rx="4"/>
    <path d="M8 7.5h3M9.5 6v3M14.5 8.5h0.1M15.5 6.5h0.1"/>"""
BUBBLE = f"""<path fill="#fff" d="M7 3h10a2 2 0 0 1 2 2v3a2 2 0 0 1 -2 2h-6l-2.5 2v-2h-1.5
      a2 2 0 0 1 -2 -2v-3a2 2 0 0 1 2 -2z"/>
    <path fill="{SITE}" stroke="none" d="M10.5 4v5l4 -2.5z"/>"""

# kind: the tile's colour and the symbol above the label
KINDS = {
    "video": (VIDEO, PLAY),
    "audio": (AUDIO, NOTE),
    "lossless": (LOSSLESS, WAVE),
    "phone": (DEVICE, PHONE),
    "tablet": (DEVICE, TABLET),
    "tv": (DEVICE, TV),
    "console": (DEVICE, CONSOLE),
    "site": (SITE, BUBBLE),
}

# name, label, kind; a label of two words fills both lines of the tile
FORMAT_ICONS = [
    ("3g2", "3G2", "video"),
    ("3gp", "3GP", "video"),
    ("asf", "ASF", "video"),
    ("av1mkv", "AV1 MKV", "video"),
    ("avi", "AVI", "video"),
    ("dnxhdmov", "DNX MOV", "video"),
    ("dv", "DV", "video"),
    ("f4v", "F4V", "video"),
    ("flv", "FLV", "video"),
    ("gif", "GIF", "video"),
    ("hevcmkv", "HEVC MKV", "video"),
    ("hevcmp4", "HEVC MP4", "video"),
    ("m2ts", "M2TS", "video"),
    ("m4v", "M4V", "video"),
    ("mkv", "MKV", "video"),
    ("mov", "MOV", "video"),
    ("mp4", "MP4", "video"),
    ("mpeg2", "MPEG 2", "video"),
    ("mpg", "MPG", "video"),
    ("mxf", "MXF", "video"),
    ("ogv", "OGV", "video"),
    ("proresmov", "PRO MOV", "video"),
    ("ts", "TS", "video"),
    ("vob", "VOB", "video"),
    ("webm", "WEBM", "video"),
    ("wmv", "WMV", "video"),
    ("xvidavi", "XVID AVI", "video"),

    ("aac", "AAC", "audio"),
    ("ac3", "AC3", "audio"),
    ("amr", "AMR", "audio"),
    ("eac3", "EAC3", "audio"),
    ("m4a", "M4A", "audio"),
    ("m4b", "M4B", "audio"),
    ("m4r", "M4R", "audio"),
    ("mka", "MKA", "audio"),
    ("mp2", "MP2", "audio"),
    ("mp3", "MP3", "audio"),
    ("ogg", "OGG", "audio"),
    ("opus", "OPUS", "audio"),
    ("wma", "WMA", "audio"),

    ("aiff", "AIFF", "lossless"),
    ("alac", "ALAC", "lossless"),
    ("au", "AU", "lossless"),
    ("caf", "CAF", "lossless"),
    ("flac", "FLAC", "lossless"),
    ("tta", "TTA", "lossless"),
    ("wav", "WAV", "lossless"),
    ("wv", "WV", "lossless"),

    ("apple", "APL", "phone"),
    ("google", "GGL", "phone"),
    ("huawei", "HUA", "phone"),
    ("oppo", "OPPO", "phone"),
    ("samsung", "SAM", "phone"),
    ("xiaomi", "XIA", "phone"),
    ("lg", "LG", "tv"),
    ("sony", "SONY", "tv"),
    ("tv", "TV", "tv"),
    ("nintendo", "NIN", "console"),
    ("playstation", "PS", "console"),
    ("xbox", "XB", "console"),
    ("amazon", "AMZ", "tablet"),
    ("roku", "ROKU", "tv"),

    ("bilibili", "BILI", "site"),
    ("dailymotion", "DM", "site"),
    ("facebook", "FB", "site"),
    ("instagram", "IG", "site"),
    ("linkedin", "LNK", "site"),
    ("tiktok", "TT", "site"),
    ("twitch", "TTV", "site"),
    ("twitter", "TWT", "site"),
    ("vimeo", "VIM", "site"),
    ("youtube", "YT", "site"),
]

SEARCH_GLASS = "M17 11a6 6 0 1 1 -12 0a6 6 0 1 1 12 0M15.3 15.3l4.2 4.2"
PENCIL = "M2.5 13.5l0.75 -3l7.35 -7.35a1.6 1.6 0 0 1 2.25 2.25l-7.35 7.35zM9 4.75l2.25 2.25"
BIN = ("M2.5 4.5h11M5.5 4.5v-1a1 1 0 0 1 1 -1h3a1 1 0 0 1 1 1v1"
       "M4 4.5l0.5 8a1 1 0 0 0 1 1h5a1 1 0 0 0 1 -1l0.5 -8M6.5 7v4M9.5 7v4")
CROSS = "M4.5 4.5l7 7M11.5 4.5l-7 7"

# file, width and height, colour, path
LINE_ICONS = [
    (LIBRARY_IMAGES / "bx-search_false.svg", 24, MUTED, SEARCH_GLASS),
    (LIBRARY_IMAGES / "bx-search_true.svg", 24, ACCENT, SEARCH_GLASS),
    (HOST_IMAGES / "ing_reviseFileName.svg", 16, ROW_ACTION, PENCIL),
    (HOST_IMAGES / "ing_ListDelete.svg", 16, ROW_ACTION, BIN),
    (HOST_IMAGES / "format_delete_rec.svg", 16, ROW_ACTION, CROSS),
]

CLEAR_CROSS = f"""<circle cx="8" cy="8" r="7" fill="{MUTED}"/>
  <path fill="none" stroke="#fff" {PEN} d="M5.5 5.5l5 5M10.5 5.5l-5 5"/>"""

EMPTY_BOX = """<circle cx="60" cy="54" r="46" fill="#F4F2FB"/>
  <ellipse cx="60" cy="103" rx="40" ry="5" fill="#E9E6F3"/>
  <path d="M31 62l9 -13h40l9 13z" fill="#B9AFE8"/>
  <g transform="rotate(-8 60 40)" stroke-linejoin="round">
    <rect x="45" y="20" width="31" height="40" rx="4" fill="#fff" stroke="#CFC8EE"/>
    <path d="M56 31v12l10 -6z" fill="#B3A8EE" stroke="#B3A8EE" stroke-width="2"/>
  </g>
  <path d="M31 62h58v33a5 5 0 0 1 -5 5h-48a5 5 0 0 1 -5 -5z" fill="#DAD4F5"/>
  <g fill="#C9C0F0">
    <path d="M31 62l-12 9a2 2 0 0 0 0.5 3l9.5 4l12 -16z"/>
    <path d="M89 62l12 9a2 2 0 0 1 -0.5 3l-9.5 4l-12 -16z"/>
  </g>
  <g fill="none" stroke-linecap="round">
    <path d="M52 84h16" stroke="#B9AFE8" stroke-width="3"/>
    <path d="M27 30v6M24 33h6M94 22v8M90 26h8" stroke="#C9C0F0" stroke-width="2"/>
  </g>
  <g fill="#DAD4F5">
    <circle cx="33" cy="18" r="2"/>
    <circle cx="99" cy="44" r="2"/>
  </g>"""

NOTHING_FOUND = """<circle cx="40" cy="38" r="34" fill="#F4F2FB"/>
  <ellipse cx="40" cy="75" rx="24" ry="3" fill="#E9E6F3"/>
  <rect x="14" y="14" width="44" height="52" rx="4" fill="#fff" stroke="#DAD4F5"/>
  <g fill="none" stroke-width="3" stroke-linecap="round">
    <path d="M22 25h20M22 34h10M22 43h8M22 52h14" stroke="#E4E0F3"/>
    <path d="M56.5 56.5l10 10" stroke="#A89CE6" stroke-width="5"/>
    <circle cx="47" cy="47" r="13" fill="#F8F6FF" stroke="#B9AFE8"/>
    <path d="M43 43l8 8M51 43l-8 8" stroke="#B9AFE8"/>
  </g>"""

# The popup hides the middle, which stays clear; the hole is a little smaller than the popup, so
# that no seam shows along its border.
POPUP_SHADOW = """<defs>
    <filter id="soft" filterUnits="userSpaceOnUse" x="0" y="0" width="794" height="460">
      <feGaussianBlur stdDeviation="6"/>
    </filter>
    <clipPath id="outside">
      <path clip-rule="evenodd" d="M0 0h794v460h-794z
        M22 9h750a4 4 0 0 1 4 4v420a4 4 0 0 1 -4 4h-750a4 4 0 0 1 -4 -4v-420a4 4 0 0 1 4 -4z"/>
    </clipPath>
  </defs>
  <g clip-path="url(#outside)">
    <rect x="17" y="17" width="760" height="426" rx="6" fill="#1E1548" fill-opacity="0.21"
      filter="url(#soft)"/>
  </g>"""

# file name, width and height of the drawing, pixels per unit of it, source
PNG_PICTURES = [
    ("search_delete.png", 16, 16, 2, CLEAR_CROSS),
    ("Notata.png", 120, 120, 4, EMPTY_BOX),
    ("noSelect.png", 80, 80, 2, NOTHING_FOUND),
    ("format_back.png", 794, 460, 1, POPUP_SHADOW),
]


def svg(width, height, body):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}">\n  {body}\n</svg>\n')


def lettering(text, top):
    """One path per letter. Only an odd width can be centred on whole pixels, so an even one loses a
    pixel between its two loosest letters."""
    roomy = len(text) < 4
    gaps = [3 if roomy else 2] * (len(text) - 1)
    width = sum(GLYPHS[letter][0] for letter in text) + sum(gaps)
    if width % 2 == 0:
        looseness = [(left in OPEN_ON_THE_RIGHT) + (right in OPEN_ON_THE_LEFT)
                     for left, right in zip(text, text[1:])]
        loosest = max(looseness, default=0)
        if loosest >= (1 if roomy else 2):
            gaps[looseness.index(loosest)] -= 1
            width -= 1

    x = (24 - width) // 2 + 0.5
    paths = []
    for letter, gap in zip(text, gaps + [0]):
        letter_width, strokes = GLYPHS[letter]
        d = "".join(f"M{x + dx:g} {top + dy:g}{path}" for dx, dy, path in strokes)
        paths.append(f'<path d="{d}"/>')
        x += letter_width + gap
    return "\n    ".join(paths)


def format_icon(label, kind):
    colour, symbol = KINDS[kind]
    words = label.split()
    if len(words) == 2:
        marks = lettering(words[0], 4.5) + "\n    " + lettering(words[1], 13.5)
    else:
        marks = symbol + "\n    " + lettering(label, 14.5)
    return svg(24, 24, f"""<rect width="24" height="24" rx="5" fill="{colour}"/>
  <g fill="none" stroke="#fff" {PEN}>
    {marks}
  </g>""")


def line_icon(size, colour, path):
    return svg(size, size, f'<path fill="none" stroke="{colour}" {PEN}\n    d="{path}"/>')


def rasterise(source, zoom, target):
    try:
        subprocess.run(["rsvg-convert", "--zoom", str(zoom), "--output", str(target)],
                       input=source.encode(), check=True)
    except FileNotFoundError:
        sys.exit("draw-icons.py: rsvg-convert is missing, install the package librsvg2-bin")


if __name__ == "__main__":
    for name, label, kind in FORMAT_ICONS:
        (LIBRARY_IMAGES / f"fmt_{name}.svg").write_text(format_icon(label, kind))
    for target, size, colour, path in LINE_ICONS:
        target.write_text(line_icon(size, colour, path))
    (LIBRARY_IMAGES / "search_delete.svg").write_text(svg(16, 16, CLEAR_CROSS))
    for name, width, height, zoom, body in PNG_PICTURES:
        rasterise(svg(width, height, body), zoom, LIBRARY_IMAGES / name)
