# shellcheck shell=bash disable=SC2034
# Reads a list of deliberate faults and puts one into a tree. Sourced by scripts/mutations.sh and tst_MutationList.sh.

# read_faults LIST: fills fault_names and, by name, fault_file, fault_means, fault_old and fault_new. A line that is none
# of the list's words, or a name that stands twice, is told and fails.
declare -a fault_names=()
declare -A fault_file=() fault_means=() fault_old=() fault_new=()
read_faults() {
    local line name='' number=0
    while IFS= read -r line || [[ -n $line ]]; do
        number=$((number + 1))
        case $line in
            ''|'#'*) ;;
            'fault '*)
                name=${line#fault }
                [[ -z ${fault_file[$name]+known} ]] || { echo "line $number: the name $name stands twice"; return 1; }
                fault_names+=("$name")
                fault_file[$name]='' fault_means[$name]='' fault_old[$name]='' fault_new[$name]=''
                ;;
            'file '*) fault_file[$name]=${line#file } ;;
            'means '*) fault_means[$name]=${line#means } ;;
            '-'*) fault_old[$name]+="${fault_old[$name]:+$'\n'}${line#-}" ;;
            '+'*) fault_new[$name]+="${fault_new[$name]:+$'\n'}${line#+}" ;;
            *) echo "line $number is not understood: $line"; return 1 ;;
        esac
    done < "$1"
}

# text_of FILE: the file with every line end it has, in $text.
text_of() {
    text=$(cat "$1" && printf x) && text=${text%x}
}

# occurrences TEXT PIECE: how often the piece stands in the text, in $count.
occurrences() {
    local rest=$1
    count=0
    while [[ $rest == *"$2"* ]]; do
        rest=${rest#*"$2"}
        count=$((count + 1))
    done
}

# put_fault NAME ROOT: changes the file of the tree at ROOT; fails, and changes nothing, unless the old text stands there
# exactly once.
put_fault() {
    local name=$1 file=$2/${fault_file[$1]} text count
    text_of "$file" || return 1
    occurrences "$text" "${fault_old[$name]}"
    [[ $count == 1 ]] || { echo "$name: its text stands $count times in ${fault_file[$name]}"; return 1; }
    printf '%s' "${text/"${fault_old[$name]}"/"${fault_new[$name]}"}" > "$file"
}
