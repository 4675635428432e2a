# Sourced. debian_source PACKAGE FOLDER fetches a source package of the release that this machine runs,
# with all its corrections applied, into FOLDER. It asks the archives that the machine already takes
# Debian's packages from, by lists of its own, so that the machine's settings stay as they are.
debian_source() {
  package=$1
  folder=$2
  lists=$(mktemp -d)
  mkdir -p "$lists/lists/partial"
  # Without this, apt-get can't fetch as its own user and warns.
  chmod -R a+rwX "$lists"
  apt-get indextargets --format '$(CREATED_BY) $(ORIGIN) $(REPO_URI) $(CODENAME) $(COMPONENT)' |
    sed -n 's/^Packages Debian /deb-src /p' | sort -u >"$lists/sources.list"
  (
    cd "$lists"
    set -- -qq -o Dir::Etc::SourceList="$lists/sources.list" -o Dir::Etc::SourceParts=- \
      -o Dir::State::Lists="$lists/lists" -o Dir::Cache="$lists" \
      -o Acquire::IndexTargets::deb-src::Sources::DefaultEnabled=true
    apt-get "$@" update
    apt-get "$@" source "$package" >apt.log 2>&1 || { cat apt.log >&2; exit 1; }
  )
  rm -rf "$folder"
  mkdir -p "$(dirname "$folder")"
  mv "$lists/$package"-*/ "$folder"
  rm -rf "$lists"
}
