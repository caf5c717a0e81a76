#!/usr/bin/env bash
# Installs what is missing of a list of Debian packages (default: packages.txt beside this script). Asks for nothing that is
# there already, so with everything installed it works without network and without rights.
set -euo pipefail
list="${1:-$(dirname "$0")/packages.txt}"

missing=()
while read -r package; do
  case "$package" in '' | '#'*) continue ;; esac
  if ! dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed; then
    missing+=("$package")
  fi
done <"$list"
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "These packages are missing, and installing them needs root (or sudo): ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
