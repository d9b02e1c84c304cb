#!/bin/sh
# sync-music-library FULL_PATH FILE_NAME
#
# Adds a converted file to the user's music library. Desktop players on Linux have no common
# "add to library" call: they index the music folder. So a file that already lies under the music
# folder needs nothing, and any other file gets a symbolic link in <music>/Sonoria/Library.
#
# The file name comes from the user's media and may hold quotes, spaces, "$(...)", ";" or a
# leading dash: every expansion is quoted, nothing is evaluated, and "--" ends the options of
# every command that takes a path. An existing entry in the library folder is never replaced.
set -eu

file=${1-}
name=${2-}

[ -n "$file" ] || exit 2
case $file in
/*) ;;
*) file=$(pwd -P)/$file ;;
esac
[ -f "$file" ] || exit 1

# The music folder: the application passes its own choice in SONORIA_MUSIC_DIR. Run by hand,
# the script follows the desktop's rule: XDG_MUSIC_DIR from user-dirs.dirs (read as data, never
# sourced; a value equal to the home folder means "not set"), else ~/Music.
home=${HOME-}
music=${SONORIA_MUSIC_DIR-}
dirs_file=${XDG_CONFIG_HOME:-$home/.config}/user-dirs.dirs
if [ -z "$music" ] && [ -r "$dirs_file" ]; then
    music=$(sed -n 's/^[[:space:]]*XDG_MUSIC_DIR[[:space:]]*=[[:space:]]*"\(.*\)"[[:space:]]*$/\1/p' \
        -- "$dirs_file" | tail -n 1)
    # The file holds a literal "$HOME" that must not be expanded by the shell.
    # shellcheck disable=SC2016
    case $music in
    '$HOME' | '$HOME/') music='' ;;
    '$HOME/'*) music=$home/${music#'$HOME/'} ;;
    "$home" | "$home/") music='' ;;
    /*) ;;
    *) music='' ;;
    esac
fi
[ -n "$music" ] || music=$home/Music
music=${music%/}

# Compare real paths, so a music folder reached through a link still counts.
mkdir -p -- "$music"
music_real=$(cd -P -- "$music" && pwd -P)
file_dir=$(cd -P -- "${file%/*}/" && pwd -P)
target=$file_dir/${file##*/}
case $target in
"$music_real"/*) exit 0 ;;
esac

library=$music_real/Sonoria/Library
mkdir -p -- "$library"

# Only the last path component of the given name counts: it must not lead out of the folder.
name=${name##*/}
case $name in
'' | . | ..) name=${target##*/} ;;
esac
case $name in
?*.*) stem=${name%.*} ext=.${name##*.} ;;
*) stem=$name ext='' ;;
esac

# Names are tried in turn ("song.m4a", "song 2.m4a", ...); ln fails rather than replace an entry
# that another delivery made in the meantime, and then the next name is tried.
number=1
link=$library/$name
while [ "$number" -le 10000 ]; do
    # Already linked by an earlier delivery: one entry is enough.
    if [ -L "$link" ] && [ "$(readlink -- "$link")" = "$target" ]; then
        exit 0
    fi
    if [ ! -e "$link" ] && [ ! -L "$link" ] && ln -s -- "$target" "$link" 2>/dev/null; then
        exit 0
    fi
    number=$((number + 1))
    link=$library/$stem\ $number$ext
done
exit 1
