#!/usr/bin/env bash
# Brings src/desktop/translations/*.ts up to date with the texts of the sources, or checks them:
#     tools/update-translations.sh            new texts go in as unfinished, gone ones go out
#     tools/update-translations.sh LANGUAGE   the same, and begins varnello_LANGUAGE.ts
#     tools/update-translations.sh --check    names what is missing or doesn't fit its English text
# The desktop marks its texts with tr(). The engine knows no toolkit: its texts stand in a Sentence, a
# Text() or a Say() (engine/common/phrase.h), of which the toolkit's tools are told here.
set -euo pipefail
shopt -s nullglob
cd "$(dirname "${BASH_SOURCE[0]}")/.."
lupdate=$(command -v lupdate || echo /usr/lib/qt6/bin/lupdate)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Each literal behind one of the three marks. Of a sentence the first is the key, and one that has
# another text for one, or a number in it, has as many translations as its language needs.
find src/engine \( -name '*.h' -o -name '*.cpp' \) -print0 | sort -z | xargs -0 perl -0777 -ne '
    while (/\b(?:Say\(|Text\(|Sentence \w+\{)\s*((?:"(?:[^"\\]|\\.)*"\s*)+)(,\s*")?/g) {
        my ($text, $one) = ($1, $2);
        my $mark = $one || $text =~ /%n/ ? "QT_TRANSLATE_N_NOOP" : "QT_TRANSLATE_NOOP";
        print "const auto text = $mark(\"Engine\", $text);\n";
    }' > "$work/engine.cpp"

files=(src/desktop/translations/varnello_*.ts)
case ${1-} in
    --check) cp "${files[@]}" "$work" && files=("$work"/varnello_*.ts) ;;
    ?*) files+=("src/desktop/translations/varnello_$1.ts") ;;
esac
"$lupdate" -silent -no-obsolete -locations none -I src src/desktop assets/tiles/groups.cpp \
    assets/render/back.cpp "$work/engine.cpp" -ts "${files[@]}" 2> >(grep -v 'Q_OBJECT macro' >&2 || true)
[ "${1-}" = --check ] && exec python3 tools/check-translations.py "${files[@]}"
