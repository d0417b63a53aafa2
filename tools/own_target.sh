#!/bin/sh
# own_target.sh: the name of the target that this machine's own programs are of.
case $(uname -m) in
aarch64|arm64) echo aarch64 ;;
*) echo x86-64 ;;
esac
