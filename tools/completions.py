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
    "own_ids": r"""vexconvert user list --json 2>/dev/null | """
               r"""sed -n 's/^        "id": "\(.*\)".*/\1/p'""",
}
KINDS = {"ID": "ids", "BASE_ID": "ids", "FORMAT": "formats", "TAG": "tags", "DIR": "folders",
         "FILE": "files", "LOG": "files", "PLAN": "files"}
WORDS = {"TYPE": ["video", "audio"]}
HEAD = "Completes the arguments of vexconvert. Made by tools/command-pages.py."


def kinds_of(page):
    """The kinds of values by their names in a subcommand's help."""
    return {**KINDS, "ID": "own_ids"} if page.name == "user" else KINDS


def value_of(page, name):
    """The kind of an option's value, or the words that it can be; empty if it can be anything."""
    words = [word for word in name.split("|") if re.fullmatch(r"[a-z-]+", word)]
    return kinds_of(page).get(name) or WORDS.get(name, words)


def syntax_of(page):
    """The usage without the subcommand's name and the values of options."""
    usage = re.sub(r"-[a-z-]+ [A-Za-z][A-Z|a-z-]*", "", " ".join(page.usage))
    return usage.removeprefix(f"vexconvert {page.name}").strip()


def arguments_in(page, syntax):
    """The kinds of arguments, and the words among them."""
    words = re.findall(r"[A-Z_]{2,}|(?<![-a-z])[a-z][a-z-]*\b", syntax)
    kinds = sorted({kinds_of(page)[word] for word in words if word in KINDS})
    return kinds, [word for word in words if word.islower() and word not in ("options", "settings")]


def arguments_of(page):
    """What can stand anywhere behind the subcommand: kinds, and lists of words."""
    if actions_of(page):
        return []
    kinds, words = arguments_in(page, syntax_of(page))
    return ([words] if words else []) + kinds


def actions_of(page):
    """The kinds of arguments by the word that comes first: of "list | add ID", those of "add". Empty
    if the arguments don't start with such a word."""
    ways = syntax_of(page).split(" | ")
    actions = [re.match(r"([a-z]+)\b(.*)", way) for way in ways if len(ways) > 1]
    return {action[1]: arguments_in(page, action[2])[0] for action in actions if action}


class HelpPage:
    """The word "help", which is followed by a subcommand."""
    name = "help"
    options = []

    def __init__(self, whole):
        self.usage = ["vexconvert help " + " ".join(whole.subcommands)]


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


def bash_replies(kinds):
    return "; ".join(map(bash_reply, kinds)) or ":"


def bash_arguments(page):
    actions = actions_of(page)
    if not actions:
        return bash_replies(arguments_of(page))
    cases = " ".join(f"{name}) {bash_replies(kinds)} ;;" for name, kinds in actions.items())
    return (f"if ((COMP_CWORD == 2)); then {bash_reply(list(actions))}; "
            f"else case ${{COMP_WORDS[2]}} in {cases} esac; fi")


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
                lines.append(f"    {names}) {bash_reply(value_of(page, option.value))}; return ;;")
    lines += ["    esac", "    if ((COMP_CWORD == 1)); then",
              f"        mapfile -t COMPREPLY < <(compgen -W {quoted(' '.join(names_in(whole)))}"
              " -- \"$current\")",
              f"        {bash_reply('files')}", "        return", "    fi",
              "    case \"${COMP_WORDS[1]} $current\" in"]
    for page in pages:
        names = [name for option in page.options for name in option.names]
        lines.append(f"    '{page.name} -'*) {bash_reply(names)} ;;")
        lines.append(f"    '{page.name} '*) {bash_arguments(page)} ;;")
    return "\n".join([*lines, "    esac", "}", "complete -F _vexconvert vexconvert"]) + "\n"


def names_in(whole):
    return [*whole.subcommands, HelpPage.name, *(name for option in whole.options for name in option.names)]


# zsh

def zsh_action(kind):
    if isinstance(kind, list):
        return f"({' '.join(kind)})" if kind else " "
    return zsh_call(kind) if kind in ("folders", "files") else "{" + zsh_call(kind) + "}"


def zsh_call(kind):
    """A command that offers the words."""
    if isinstance(kind, list):
        return f"compadd {' '.join(kind)}"
    return {"folders": "_files -/", "files": "_files"}.get(kind, f"_vexconvert_offer {kind}")


def zsh_arguments(page):
    """The arguments of _arguments for what isn't an option."""
    actions = actions_of(page)
    if actions:
        cases = " ".join(f"({name}) {'; '.join(map(zsh_call, kinds)) or ':'} ;;"
                         for name, kinds in actions.items())
        return (f"'1:action:({' '.join(actions)})' "
                f"'*:argument:{{ case $words[2] in {cases} esac }}'")
    kinds = arguments_of(page)
    if len(kinds) > 1:
        return f"'*::argument:{{ {'; '.join(map(zsh_call, kinds))} }}'"
    return f"'*:argument:{zsh_action(kinds[0])}'" if kinds else ""


def zsh_option(page, option):
    names = (f"'({' '.join(option.names)})'{{{','.join(option.names)}}}" if len(option.names) > 1
             else option.names[0])
    text = re.sub(r"([\[\]:])", r"\\\1", option.text)
    value = f":{option.value}:{zsh_action(value_of(page, option.value))}" if option.value else ""
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
              + " ".join(zsh_option(whole, option) for option in whole.options) + " '*:file:_files'", "        return",
              "    fi", "    local subcommand=$words[2]", "    shift words", "    ((CURRENT--))",
              "    case $subcommand in"]
    for page in pages:
        options = " ".join(zsh_option(page, option) for option in page.options)
        lines.append(f"    {page.name}) _arguments {options} {zsh_arguments(page)} ;;")
    return "\n".join([*lines, "    esac", "}", "_vexconvert \"$@\""]) + "\n"


# fish

def fish_arguments(kind):
    if isinstance(kind, list):
        return f"-x -a {quoted(' '.join(kind))}" if kind else "-x"
    return {"folders": "-x -a '(__fish_complete_directories)'", "files": "-r -F"}.get(
        kind, f"-x -a '(_vexconvert_{kind})'")


def fish_line(condition, rest):
    return f"complete -c vexconvert -n {quoted(condition)} {rest}"


def fish_option(page, condition, option):
    flags = " ".join(f"-l {name[2:]}" if name.startswith("--") else f"-s {name[1:]}"
                     for name in option.names)
    value = fish_arguments(value_of(page, option.value)) if option.value else "-f"
    return fish_line(condition, f"{flags} {value} -d {quoted(option.text)}")


def fish(whole, pages):
    lines = [f"# {HEAD}"]
    lines += [f"function _vexconvert_{kind}\n    {command}\nend" for kind, command in LISTS.items()]
    first = "__fish_use_subcommand"
    lines += [f"complete -c vexconvert -n {first} -a {name} -d {quoted(text)}"
              for name, text in whole.subcommands.items()]
    lines += [fish_option(whole, first, option) for option in whole.options]
    for page in pages:
        condition = f"__fish_seen_subcommand_from {page.name}"
        kinds = arguments_of(page)
        actions = actions_of(page)
        if "files" not in kinds + sum(actions.values(), []):
            lines.append(fish_line(condition, "-f"))
        lines += [fish_line(condition, fish_arguments(kind)) for kind in kinds]
        if actions:
            words = list(actions)
            none = f"{condition}; and not __fish_seen_subcommand_from {' '.join(words)}"
            lines.append(fish_line(none, fish_arguments(words)))
        lines += [fish_line(f"{condition}; and __fish_seen_subcommand_from {name}",
                            fish_arguments(kind))
                  for name, of_action in actions.items() for kind in of_action]
        lines += [fish_option(page, condition, option) for option in page.options]
    return "\n".join(lines) + "\n"


def write(whole, pages, folder):
    pages = [*pages, HelpPage(whole)]
    (folder / "vexconvert").write_text(bash(whole, pages))
    (folder / "_vexconvert").write_text(zsh(whole, pages))
    (folder / "vexconvert.fish").write_text(fish(whole, pages))
