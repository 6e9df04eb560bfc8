# What scenarios do to files, beside the shell's own commands.
exists() { [ -e "$1" ]; }
missing() { [ ! -e "$1" ]; }
same() { cmp "$1" "$2"; }
copy() { cp -r "$1" "$2"; }
remove() { rm -r "$1"; }
folder() { mkdir -p "$1"; }
cut_off() { truncate -s "$2" "$1"; }
write() { # FILE TEXT...
    file=$1
    shift
    printf '%s\n' "$*" >"$file"
}
