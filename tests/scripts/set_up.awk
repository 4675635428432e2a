# Reads how a script sets up its run: prints its lines "#: key value" as "key value", and writes the
# files that it carries into the folder CARRIED. Anything that README.md doesn't tell fails.

BEGIN {
  for (code = 0; code < 256; ++code) byte[sprintf("%02X", code)] = sprintf("%c", code)
  letter["t"] = "\t"
  letter["r"] = "\r"
  letter["n"] = "\n"
  letter["\\"] = "\\"
}

/^#:/ { set_up() }
/^#\|/ { carry() }
/^#[^ :|]/ { fail("neither a comment nor a setting") }
!/^#[:|]/ { end_file() }

function fail(why) {
  printf "%s:%d: %s: %s\n", FILENAME, FNR, why, $0 >"/dev/stderr"
  exit 1
}

function set_up(  key, value) {
  end_file()
  if ($0 !~ /^#: [a-z]+ ./ || $0 ~ / $/) fail("not of the form \"#: key value\"")
  key = $2
  value = substr($0, 5 + length(key))
  if (key !~ /^(folder|locale|exit|show|file)$/) fail("an unknown key")
  if (key !~ /^(show|file)$/ && key in seen) fail("given twice")
  if (key == "locale" && value !~ /^(point|comma)$/) fail("an unknown locale")
  if (key == "exit" && value !~ /^[023]$/) fail("a status that the driver doesn't have")
  seen[key] = 1
  print key, value
  if (key == "file") start_file(value)
}

function start_file(name) {
  if (name !~ /^[A-Za-z0-9._\/ -]+$/ || ("/" name "/") ~ /\/(\.\.?)?\//) fail("not the name of a file")
  if (name in carried) fail("carried twice")
  carried[name] = 1
  file = ENVIRON["CARRIED"] "/" name
  if (name ~ /\//) {
    folder = file
    sub(/\/[^\/]*$/, "", folder)
    if (system("mkdir -p '" folder "'") != 0) fail("no folder for it")
  }
  printf "" >file
}

function end_file() {
  if (file != "") close(file)
  file = ""
}

function carry() {
  if (file == "") fail("a line of no file")
  if ($0 !~ /^#\|( |$)/) fail("no blank in front of the text")
  if ($0 !~ /^[ -~]*$/ || $0 ~ / $/) fail("a byte that has to be escaped")
  printf "%s", bytes_of(substr($0, 4)) >file
}

# The bytes that an escaped line stands for, its end included.
function bytes_of(text,   bytes, at, next_letter) {
  while ((at = index(text, "\\")) > 0) {
    bytes = bytes substr(text, 1, at - 1)
    next_letter = substr(text, at + 1, 1)
    if (next_letter == "") return bytes
    if (next_letter == "x" && substr(text, at + 2, 2) in byte) {
      bytes = bytes byte[substr(text, at + 2, 2)]
      text = substr(text, at + 4)
    } else if (next_letter in letter) {
      bytes = bytes letter[next_letter]
      text = substr(text, at + 2)
    } else {
      fail("an unknown escape")
    }
  }
  return bytes text "\r\n"
}
