-- Diary.mdb: the adviser's diary. Delivered empty.

-- One row an entry: the time as picked ("08:15 AM"), the date as dd/mm/yyyy, the person; Real Sort Order is the day
-- number by which a day is read, Real Sort Order Time the place of the time in its list (101 the first); DiaryDCLNO
-- the client's number, 0 for a typed name.
CREATE TABLE [DiaryDates] (
    [Time] VARCHAR(20), [Diary Date] VARCHAR(10), [Name] VARCHAR(80), [Appointment details] TEXT,
    [Real Sort Order] DOUBLE, [Real Sort Order Time] DOUBLE, [DiaryDCLNO] DOUBLE, [Type of Diary Entry] VARCHAR(50)
);

-- The user's own kinds of entry: caption, place 1 to 3, in use or not.
CREATE TABLE [Type_Diary_Apps] (
    [Type of Diary Appointments] VARCHAR(50), [WhichUDDE] DOUBLE, [UDDEYesNo] BOOLEAN
);
