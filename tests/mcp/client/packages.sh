# For the scripts beside: what they need of Node, and their packages.
skip() {
  echo "Skipped: $*" >&2
  exit 77
}

# need_node PROGRAM MAJOR
need_node() {
  command -v "$1" >/dev/null && command -v npm >/dev/null || skip "Node and npm are not installed."
  "$1" -e "process.exit(Number(process.versions.node.split('.')[0]) >= $2 ? 0 : 1)" ||
    skip "Node $2 or later is needed, here is $("$1" --version)."
}

# install_packages FROM TO: exactly what the lock file in FROM names, once. Nothing of it runs while it is installed.
install_packages() {
  local from=$1 to=$2
  mkdir -p "$to"
  if cmp -s "$from/package-lock.json" "$to/installed-lock.json"; then
    return
  fi
  rm -f "$to/installed-lock.json"
  cp "$from/package.json" "$from/package-lock.json" "$from/.npmrc" "$to"
  if ! (cd "$to" && npm ci --ignore-scripts --no-audit --no-fund --prefer-offline --loglevel=error >npm.log 2>&1); then
    cat "$to/npm.log" >&2
    # Packages that are not what the lock file says are a fault; a registry that cannot be reached is none.
    if grep -qE 'EINTEGRITY|EUSAGE|ETARGET' "$to/npm.log"; then
      exit 1
    fi
    skip "the packages cannot be installed."
  fi
  cp "$from/package-lock.json" "$to/installed-lock.json"
}
