# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034,SC2154 # the files of this folder share their variables
# A print service of the run's own: a scheduler behind a socket, with one queue that keeps what it prints in a file,
# and the number of copies beside it.

start_print_service() {
    local service=$Place/cups
    Printed=$service/printed.pdf
    export CUPS_SERVER=$service/socket
    mkdir -p "$service"/{spool/tmp,cache,state,bin/backend}
    ln -s /usr/lib/cups/daemon "$service/bin/daemon"
    # shellcheck disable=SC2016 # for the backend's own shell
    printf '#!/bin/sh\n[ $# -eq 0 ] || { cat "${6:--}" >"${DEVICE_URI#keep:}" && echo "$4" >"${DEVICE_URI#keep:}.copies"; }\n' \
        >"$service/bin/backend/keep"
    chmod 700 "$service/bin/backend/keep"
    cat >"$service/cupsd.conf" <<-CONF
		Listen $service/socket
		Browsing Off
		WebInterface No
		DefaultAuthType None
		<Location />
		  Order allow,deny
		  Allow all
		</Location>
		<Policy default>
		  <Limit All>
		    Order deny,allow
		  </Limit>
		</Policy>
	CONF
    cat >"$service/cups-files.conf" <<-CONF
		ServerBin $service/bin
		ServerRoot $service
		RequestRoot $service/spool
		CacheDir $service/cache
		StateDir $service/state
		TempDir $service/spool/tmp
		AccessLog $service/access.log
		ErrorLog $service/error.log
		PageLog $service/page.log
	CONF
    /usr/sbin/cupsd -f -c "$service/cupsd.conf" -s "$service/cups-files.conf" &
    PrintService=$!
    until_true "the print service and its queue" add_queue
}

add_queue() { /usr/sbin/lpadmin -p Paper -v "keep:$Printed" -E -m raw && /usr/sbin/lpadmin -d Paper; } 2>/dev/null

stop_print_service() {
    kill "$PrintService"
    until_true "the end of the print service" has_ended "$PrintService"
}
