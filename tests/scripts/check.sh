#!/usr/bin/env bash
# Runs a script in a clean folder and compares what it prints with the lines kept beside it.
# With RENEW=1 the kept lines are written anew: read the difference before you keep it.
set -eu
runner=$(realpath "$1")
script=$(realpath "$2")
expected=${script%.zef}.out
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp -r "$(dirname "$script")"/data/. "$folder" 2>/dev/null || true

language=en
case $(basename "$script") in *_it.zef) language=it ;; esac
cd "$folder"
status=0
"$runner" --language "$language" --today 20/11/2026 --folder "$folder" "$script" >actual 2>error || status=$?
{
  sed "s#$folder#FOLDER#g" actual
  sed 's/^/stderr: /' error
  if [ "$status" -ne 0 ]; then echo "exit status $status"; fi
} >"$folder/all"
if [ "${RENEW:-0}" = 1 ]; then cp "$folder/all" "$expected"; fi
diff -u "$expected" "$folder/all"
