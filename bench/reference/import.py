"""The measured import with Python's csv module and a set of numbers."""
import csv
import sys

contacts, book = sys.argv[1:]
REMOVED = str.maketrans("", "", " -()/")

with open(book, encoding="latin-1", newline="") as file:
    numbers = {line.split(";", 2)[1] for line in file}

fresh = []
with open(contacts, encoding="latin-1", newline="") as file:
    rows = csv.reader(file, delimiter=";")
    next(rows)
    for row in rows:
        number = row[2].replace("+", "00").translate(REMOVED)
        if number.startswith("0049"):
            number = "0" + number.replace("0049", "")
        if len(number) > 7 and number not in numbers:
            numbers.add(number)
            fresh.append(f"{row[0]} {row[1]};{number};0;0;0;0;{row[4]} {row[5]};;[vcd()vcd]\r\n")

with open(book, "a", encoding="latin-1", newline="") as file:
    file.writelines(fresh)
