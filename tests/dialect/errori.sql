-- Texts that cannot be read. They fail, and nothing is repaired.
@archive none

-- [apostrophe] a name with an apostrophe breaks its statement
Select * from Piatti where Piatto = 'Pesce all'acqua'
!! Errore di sintassi nell'istruzione: un nome contiene un apostrofo ('): scrivere ’ al suo posto

-- [quotes] double quotes left open
SELECT * FROM Piatti WHERE Piatto = "Pasta
!! Errore di sintassi nell'istruzione: mancano le virgolette

-- [bracket] a name left open
SELECT [Piatto FROM Piatti
!! Errore di sintassi nell'istruzione: manca una parentesi quadra

-- [day-open] a date left open
SELECT * FROM Menu WHERE DataMenu = #1/2/2025
!! Errore di sintassi nell'istruzione: manca il segno # che chiude una data

-- [no-day] no calendar has this day
SELECT * FROM Menu WHERE DataMenu = #2/30/2025#
!! Errore di sintassi nella data #2/30/2025#

-- [no-month] neither number is a month
SELECT * FROM Menu WHERE DataMenu = #13/32/2025#
!! Errore di sintassi nella data #13/32/2025#

-- [empty-day] a date without numbers
SELECT * FROM Menu WHERE DataMenu = #//#
!! Errore di sintassi nella data #//#

-- [short-year] a year has four digits
SELECT * FROM Menu WHERE DataMenu = #1/2/25#
!! Errore di sintassi nella data #1/2/25#

-- [round-open] a round bracket left open
SELECT * FROM Menu WHERE (Cena = ''
!! Errore di sintassi nell'istruzione: manca una parentesi tonda

-- [round-close] one too many
SELECT * FROM Menu WHERE Cena = '')
!! Errore di sintassi nell'istruzione: c'è una parentesi tonda di troppo

-- [two] one statement a call
DELETE * FROM Menu; DELETE * FROM Piatti
!! Errore di sintassi nell'istruzione: c'è altro testo dopo la fine

-- [two-ends] even an empty one
DELETE * FROM Menu;;
!! Errore di sintassi nell'istruzione: c'è altro testo dopo la fine

-- [sign] a sign that no statement holds
SELECT * FROM Menu WHERE Cena = ?
!! Errore di sintassi nell'istruzione: segno inatteso "?"

-- [point] a point stands between names
SELECT * FROM Menu WHERE Menu. = 1
!! Errore di sintassi nell'istruzione: un punto è fuori posto

-- [empty] nothing but blanks
   
!! L'istruzione è vuota

-- [only-end] nothing but the end
;
!! L'istruzione è vuota
