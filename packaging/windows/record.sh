#!/usr/bin/env bash
# record.sh PROGRAM ARGUMENT...: runs it, and keeps what it prints in numbered files in the folder
# $RECORD. The program takes this process's place, so that whoever ends it ends this too.
number=$(find "$RECORD" -name '*.out' | wc -l)
exec "$@" > >(exec tee "$RECORD/$number.out") 2> >(exec tee "$RECORD/$number.err" >&2)
