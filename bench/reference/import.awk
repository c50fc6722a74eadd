# The measured import with awk: mawk -f import.awk BOOK CONTACTS >> BOOK
BEGIN { FS = ";"; RS = "\r\n" }
FNR == NR { known[$2]; next }
FNR == 1 { next }
{
  number = $3
  gsub(/\+/, "00", number)
  gsub(/[-() \/]/, "", number)
  if (substr(number, 1, 4) == "0049") {
    gsub(/0049/, "", number)
    number = "0" number
  }
  if (length(number) < 8 || number in known) next
  known[number]
  printf "%s %s;%s;0;0;0;0;%s %s;;[vcd()vcd]\r\n", $1, $2, number, $5, $6
}
