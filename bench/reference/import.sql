-- The measured import with sqlite3, in the folder of contacts.csv and book.txt; writes fresh.txt.
PRAGMA journal_mode = OFF;
CREATE TABLE contacts(surname, name, phone, street, postal_code, city, customer, remark);
CREATE TABLE book(name, number, tag, flag1, count, flag2, address, extra, card);
.mode ascii
.separator ";" "\n"
.import --skip 1 contacts.csv contacts
.import book.txt book
CREATE TABLE cleaned AS
  SELECT rowid AS place, surname || ' ' || name AS name, postal_code || ' ' || city AS address,
         replace(replace(replace(replace(replace(replace(
           phone, '+', '00'), ' ', ''), '-', ''), '(', ''), ')', ''), '/', '') AS dialled
  FROM contacts;
UPDATE cleaned SET dialled = '0' || replace(dialled, '0049', '') WHERE substr(dialled, 1, 4) = '0049';
CREATE INDEX book_numbers ON book(number);
.output fresh.txt
SELECT name || ';' || dialled || ';0;0;0;0;' || address || ';;[vcd()vcd]' || char(13)
FROM cleaned
WHERE place IN (SELECT min(place) FROM cleaned GROUP BY dialled)
  AND length(dialled) > 7
  AND NOT EXISTS (SELECT 1 FROM book WHERE book.number = dialled)
ORDER BY place;
