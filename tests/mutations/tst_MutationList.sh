#!/usr/bin/env bash
# Every fault of the list can be put in; and the reader of the list sees mistakes. Usage: tst_MutationList.sh SOURCE-TREE
# SCRATCH-FOLDER
set -euo pipefail

source_tree=$1
scratch=$2
folder=$(dirname "$(readlink -f "$0")")
. "$folder/faults.sh"
failures=0

fail() {
    printf 'FAIL: %s\n' "$*"
    failures=$((failures + 1))
}

least=48
folders=(semantics frame tables credit)

rm -rf "$scratch"
mkdir -p "$scratch"
cp -r "$source_tree/OrderParamTable_mini" "$scratch/"

read_faults "$folder/faults.txt" || fail "the list cannot be read"
[[ ${#fault_names[@]} -ge $least ]] || fail "the list has ${#fault_names[@]} faults, less than $least"
files=" "
for name in "${fault_names[@]}"; do
    files+="${fault_file[$name]} "
    [[ -n ${fault_means[$name]} ]] || fail "$name does not say what it means"
    [[ -n ${fault_old[$name]} ]] || fail "$name replaces nothing"
    [[ ${fault_old[$name]} != "${fault_new[$name]}" ]] || fail "$name changes nothing"
    if ! put_fault "$name" "$scratch"; then
        fail "$name cannot be put in"
        continue
    fi
    ! cmp -s "$source_tree/${fault_file[$name]}" "$scratch/${fault_file[$name]}" || fail "$name left its file as it was"
    cp "$source_tree/${fault_file[$name]}" "$scratch/${fault_file[$name]}"
done
for part in "${folders[@]}"; do
    [[ $files == *" OrderParamTable_mini/$part/"* ]] || fail "no fault is in $part"
done

# One small file, and lists that are wrong about it.
printf 'one\ntwo & two\nthree\n' > "$scratch/text"
# list BODY: the list of one fault in that file.
list() {
    fault_names=() fault_file=() fault_means=() fault_old=() fault_new=()
    printf 'fault a\nfile text\nmeans a change\n%s\n' "$1" > "$scratch/list"
    read_faults "$scratch/list"
}
list $'-one\n+ONE & one' && put_fault a "$scratch" || fail "a line cannot be replaced"
[[ $(cat "$scratch/text") == $'ONE & one\ntwo & two\nthree' ]] || fail "a line is replaced by something else"
list $'-two & two\n-three' && put_fault a "$scratch" || fail "two lines cannot be taken out"
[[ $(cat "$scratch/text") == $'ONE & one' ]] || fail "two lines leave something behind"
list $'-four' && ! put_fault a "$scratch" >/dev/null || fail "a text that is not there is put in"
list $'-one\n+1' && put_fault a "$scratch" || fail "a piece of a line cannot be replaced"
printf 'one one\n' > "$scratch/text"
list $'-one\n+1' && ! put_fault a "$scratch" >/dev/null || fail "a text that is there twice is put in"
! list 'bogus' >/dev/null || fail "a line without meaning is taken"
! list $'fault a' >/dev/null || fail "a name is taken twice"

rm -rf "$scratch"
[[ $failures == 0 ]] || { echo "$failures checks failed"; exit 1; }
