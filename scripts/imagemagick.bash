# ImageMagick under Debian's own names, which say its version: a "convert" of another origin may stand before them in PATH,
# and version 7 warns of that name. Sourced; the options that the project uses mean the same in 6 and 7, where the
# picture that is read comes before what is done to it.

# Gives the program that does what "convert", "mogrify", "import", "identify" or "display" does.
imagemagick() {
    local name
    for name in "$1-im6.q16" "$([[ $1 == convert ]] && echo magick || echo "$1")-im7.q16"; do
        ! command -v "$name" || return 0
    done
    # Another build of it has at least these.
    echo "$1"
}

convert() { "$(imagemagick convert)" "$@"; }
identify() { "$(imagemagick identify)" "$@"; }
import() { "$(imagemagick import)" "$@"; }
display() { "$(imagemagick display)" "$@"; }
