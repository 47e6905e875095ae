"""Shell completions of vexconvert from its help texts; a part of command-pages.py.

Subcommands and options are written into the scripts; formats and ids are asked from vexconvert when
they are completed, so that the user's own presets are among them.
"""

import re

# What prints the words of each kind, one per line. The JSON has one name per line.
LISTS = {
    "formats": r"""vexconvert formats --json 2>/dev/null | sed -n 's/.*"title": "\(.*\)".*/\1/p'""",
    "tags": r"""vexconvert formats --json 2>/dev/null | sed -n 's/.*"tag": "\(.*\)".*/\1/p' | sort -u""",
    "ids": r"""vexconvert presets --json 2>/dev/null | """
           r"""sed -n 's/^        "id": "\(.*\)".*/\1/p' | sort""",
}
KINDS = {"ID": "ids", "BASE_ID": "ids", "FORMAT": "formats", "TAG": "tags", "DIR": "folders",
         "FILE": "files", "LOG": "files", "PLAN": "files"}
WORDS = {"TYPE": ["video", "audio"]}
HEAD = "Completes the arguments of vexconvert. Made by tools/command-pages.py."


def value_of(name):
    """The kind of an option's value, or the words that it can be; empty if it can be anything."""
    words = [word for word in name.split("|") if re.fullmatch(r"[a-z-]+", word)]
    return KINDS.get(name) or WORDS.get(name, words)


def arguments_of(page):
    """The kinds of a subcommand's arguments, and the words among them."""
    usage = re.sub(r"-\S+ [A-Z|a-z]+", "", " ".join(page.usage))
    usage = usage.removeprefix(f"vexconvert {page.name}")
    words = re.findall(r"[A-Z_]{2,}|(?<![-a-z])[a-z]+\b", usage)
    kinds = sorted({KINDS[word] for word in words if word in KINDS})
    return kinds, [word for word in words if word.islower() and word not in ("options", "settings")]


def quoted(text):
    return "'" + text.replace("'", "'\\''") + "'"


def functions():
    return "\n".join(f"_vexconvert_{kind}() {{\n    {command}\n}}" for kind, command in LISTS.items())


# bash

def bash_reply(kind):
    if isinstance(kind, list):
        return f"mapfile -t COMPREPLY < <(compgen -W '{' '.join(kind)}' -- \"$current\")"
    if kind in LISTS:
        return f"_vexconvert_offer \"$current\" < <(_vexconvert_{kind})"
    if kind:
        action = "d" if kind == "folders" else "f"
        return (f"compopt -o filenames; mapfile -t -O ${{#COMPREPLY[@]}} COMPREPLY "
                f"< <(compgen -{action} -- \"$current\")")
    return ":"


def bash(whole, pages):
    lines = [f"# {HEAD}", functions(), r"""# Offers the lines of standard input that start with $1, quoted, in any case of letters.
_vexconvert_offer() {
    local word typed=${1//[\\\"\']/}
    while IFS= read -r word; do
        [[ ${word,,} != "${typed,,}"* ]] || COMPREPLY+=("$(printf '%q' "$word")")
    done
}
_vexconvert() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    COMPREPLY=()
    case "${COMP_WORDS[1]} $previous" in"""]
    for page in pages:
        for option in page.options:
            if option.value:
                names = "|".join(f"{quoted(page.name + ' ' + name)}" for name in option.names)
                lines.append(f"    {names}) {bash_reply(value_of(option.value))}; return ;;")
    lines += ["    esac", "    if ((COMP_CWORD == 1)); then",
              f"        mapfile -t COMPREPLY < <(compgen -W {quoted(' '.join(names_in(whole)))}"
              " -- \"$current\")",
              f"        {bash_reply('files')}", "        return", "    fi",
              "    case \"${COMP_WORDS[1]} $current\" in"]
    for page in pages:
        kinds, words = arguments_of(page)
        names = [name for option in page.options for name in option.names]
        lines.append(f"    '{page.name} -'*) {bash_reply(names)} ;;")
        replies = [bash_reply(each) for each in ([words] if words else []) + kinds]
        lines.append(f"    '{page.name} '*) {'; '.join(replies) or ':'} ;;")
    return "\n".join([*lines, "    esac", "}", "complete -F _vexconvert vexconvert"]) + "\n"


def names_in(whole):
    return [*whole.subcommands, *(name for option in whole.options for name in option.names)]


# zsh

def zsh_action(kind):
    if isinstance(kind, list):
        return f"({' '.join(kind)})" if kind else " "
    return {"folders": "_files -/", "files": "_files"}.get(kind, "{_vexconvert_offer " + kind + "}")


def zsh_option(option):
    names = (f"'({' '.join(option.names)})'{{{','.join(option.names)}}}" if len(option.names) > 1
             else option.names[0])
    text = re.sub(r"([\[\]:])", r"\\\1", option.text)
    value = f":{option.value}:{zsh_action(value_of(option.value))}" if option.value else ""
    return names + quoted(f"[{text}]{value}")


def zsh(whole, pages):
    lines = ["#compdef vexconvert", f"# {HEAD}", functions(), """_vexconvert_offer() {
    local -a found
    found=(${(f)"$(_vexconvert_$1)"})
    compadd -M 'm:{a-zA-Z}={A-Za-z}' -a found
}
_vexconvert() {
    if ((CURRENT == 2)); then
        local -a subcommands
        subcommands=("""]
    lines += ["            " + quoted(f"{name}:{text}") for name, text in whole.subcommands.items()]
    lines += ["        )", "        _describe subcommand subcommands", "        _arguments "
              + " ".join(map(zsh_option, whole.options)) + " '*:file:_files'", "        return",
              "    fi", "    local subcommand=$words[2]", "    shift words", "    ((CURRENT--))",
              "    case $subcommand in"]
    for page in pages:
        kinds, words = arguments_of(page)
        actions = [zsh_action(each) for each in ([words] if words else []) + kinds]
        if len(actions) > 1:
            rest = "'*::argument:{ " + "; ".join(
                f"compadd {' '.join(words)}" if action.startswith("(") else action
                for action in actions) + " }'"
        else:
            rest = f"'*:argument:{actions[0]}'" if actions else ""
        lines.append(f"    {page.name}) _arguments {' '.join(map(zsh_option, page.options))} {rest} ;;")
    return "\n".join([*lines, "    esac", "}", "_vexconvert \"$@\""]) + "\n"


# fish

def fish_arguments(kind):
    if isinstance(kind, list):
        return f"-x -a {quoted(' '.join(kind))}" if kind else "-x"
    return {"folders": "-x -a '(__fish_complete_directories)'", "files": "-r -F"}.get(
        kind, f"-x -a '(_vexconvert_{kind})'")


def fish_option(condition, option):
    flags = " ".join(f"-l {name[2:]}" if name.startswith("--") else f"-s {name[1:]}"
                     for name in option.names)
    value = fish_arguments(value_of(option.value)) if option.value else "-f"
    return f"complete -c vexconvert -n {quoted(condition)} {flags} {value} -d {quoted(option.text)}"


def fish(whole, pages):
    lines = [f"# {HEAD}"]
    lines += [f"function _vexconvert_{kind}\n    {command}\nend" for kind, command in LISTS.items()]
    first = "__fish_use_subcommand"
    lines += [f"complete -c vexconvert -n {first} -a {name} -d {quoted(text)}"
              for name, text in whole.subcommands.items()]
    lines += [fish_option(first, option) for option in whole.options]
    for page in pages:
        condition = f"__fish_seen_subcommand_from {page.name}"
        kinds, words = arguments_of(page)
        if "files" not in kinds:
            lines.append(f"complete -c vexconvert -n {quoted(condition)} -f")
        lines += [f"complete -c vexconvert -n {quoted(condition)} {fish_arguments(each)}"
                  for each in ([words] if words else []) + kinds]
        lines += [fish_option(condition, option) for option in page.options]
    return "\n".join(lines) + "\n"


def write(whole, pages, folder):
    (folder / "vexconvert").write_text(bash(whole, pages))
    (folder / "_vexconvert").write_text(zsh(whole, pages))
    (folder / "vexconvert.fish").write_text(fish(whole, pages))
