# A printing service of its own, apart from the system's, for scripts that source it. With
# `begin_printing` the programs that the script starts print on it; its default printer, which
# printer.ppd describes, leaves the last job in the file $printed.
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
service=

# Tells in one line what is missing, and fails, where no such service can run.
can_print() {
    PATH=$PATH:/usr/sbin:/sbin
    local tool
    for tool in cupsd lpadmin lpoptions pdftoppm convert; do
        command -v $tool > /dev/null || { echo "$tool is not installed"; return 1; }
    done
    [ -x /usr/lib/cups/filter/pdftopdf ] || { echo "cups-filters is not installed"; return 1; }
}

# The folder lies where the service's own user can reach it, under a name short enough for a socket.
begin_printing() {
    cups=$(mktemp -d) || return 1
    chmod 755 "$cups"
    mkdir -p "$cups"/{root/ppd,spool,cache,state,log,tmp,home} || return 1
    printed=$cups/printed.pdf
    chmod 1777 "$cups/tmp" # filters of PostScript write there under a name of their own
    export HOME=$cups/home CUPS_SERVERROOT=$cups/root CUPS_SERVER=$cups/socket
    unset LPDEST PRINTER
    cat > "$cups/root/cups-files.conf" << END
ServerRoot $cups/root
RequestRoot $cups/spool
CacheDir $cups/cache
StateDir $cups/state
TempDir $cups/tmp
ErrorLog $cups/log/error
AccessLog $cups/log/access
PageLog $cups/log/page
FileDevice Yes
END
    cat > "$cups/root/cupsd.conf" << END
Listen $cups/socket
Browsing No
WebInterface No
DefaultAuthType None
<Location />
  Allow all
</Location>
<Policy default>
  <Limit All>
    Allow all
  </Limit>
</Policy>
END
    serve || return 1
    add_printer
}

serve() {
    cupsd -f -c "$cups/root/cupsd.conf" -s "$cups/root/cups-files.conf" > "$cups/log/output" 2>&1 &
    service=$!
    local i
    for i in $(seq 100); do
        lpstat -r 2> /dev/null | grep -q 'is running' && return
        sleep 0.1
    done
    echo "the printing service does not start" >&2
    return 1
}

add_printer() {
    # A word of the tool on the future of printer descriptions is no fault.
    lpadmin -p test -E -v "file://$printed" -P "$here/printer.ppd" 2> /dev/null &&
        lpadmin -d test
}

# Waits up to 20 seconds until no job is left.
await_jobs() {
    local i
    for i in $(seq 100); do
        [ -z "$(lpstat -o)" ] && return
        sleep 0.2
    done
    echo "a job is not done" >&2
    return 1
}

stop_service() {
    [ -n "$service" ] || return 0
    kill -CONT "$service" 2> /dev/null || true
    kill "$service" 2> /dev/null || true
    wait "$service" 2> /dev/null || true
    service=
}

end_printing() {
    stop_service
    rm -rf "$cups"
}
