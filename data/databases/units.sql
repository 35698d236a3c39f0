-- units.mdb: growth of unit trust funds. Figures are fractions a year: 0.123 shows as 12.3 %. The funds are invented
-- examples; a practice puts its own here.

-- One row a fund. Some index names say 10yr although the figures are of seven years. Ties are ordered by fund name.
CREATE TABLE [Units] (
    [Unit Trust Fund] VARCHAR(80), [1 yr] DOUBLE, [2 yr] DOUBLE, [3 yr] DOUBLE, [5 yr] DOUBLE, [7 yr] DOUBLE
);
CREATE INDEX [UTFIndexD] ON [Units] ([Unit Trust Fund] DESC);
CREATE INDEX [UTFIndexA] ON [Units] ([Unit Trust Fund]);
CREATE INDEX [1yrIndexD] ON [Units] ([1 yr] DESC, [Unit Trust Fund]);
CREATE INDEX [1yrIndexA] ON [Units] ([1 yr], [Unit Trust Fund]);
CREATE INDEX [2yrIndexD] ON [Units] ([2 yr] DESC, [Unit Trust Fund]);
CREATE INDEX [2yrIndexA] ON [Units] ([2 yr], [Unit Trust Fund]);
CREATE INDEX [3yrIndexD] ON [Units] ([3 yr] DESC, [Unit Trust Fund]);
CREATE INDEX [3yrIndexA] ON [Units] ([3 yr], [Unit Trust Fund]);
CREATE INDEX [5yrIndexD] ON [Units] ([5 yr] DESC, [Unit Trust Fund]);
CREATE INDEX [5yrIndexA] ON [Units] ([5 yr], [Unit Trust Fund]);
CREATE INDEX [10yrIndexD] ON [Units] ([7 yr] DESC, [Unit Trust Fund]);
CREATE INDEX [10yrIndexA] ON [Units] ([7 yr], [Unit Trust Fund]);
INSERT INTO [Units] VALUES
    ('Baobab Balanced Fund', 0.078, 0.061, 0.132, 0.085, 0.117),
    ('Berg River Bond Fund', 0.083, 0.076, 0.088, 0.082, 0.087),
    ('Blue Crane Money Market Fund', 0.064, 0.068, 0.078, 0.083, 0.076),
    ('Bushveld Equity Fund', 0.057, 0.135, 0.165, 0.120, 0.110),
    ('Cederberg Flexible Fund', 0.215, 0.045, 0.155, 0.100, 0.098),
    ('Drakensberg Growth Fund', 0.035, 0.086, 0.150, 0.093, 0.119),
    ('Fynbos Income Fund', 0.090, 0.082, 0.086, 0.080, 0.081),
    ('Gariep Property Fund', 0.053, 0.143, 0.107, 0.102, 0.119),
    ('Highveld Industrial Fund', 0.105, 0.084, 0.148, 0.129, 0.102),
    ('Jacaranda Stable Fund', 0.093, 0.091, 0.097, 0.093, 0.088),
    ('Karoo Value Fund', 0.216, 0.056, 0.106, 0.133, 0.098),
    ('Klipspringer Small Companies Fund', 0.113, 0.044, 0.134, 0.134, 0.119),
    ('Kudu Resources Fund', 0.194, 0.086, 0.137, 0.122, 0.119),
    ('Lowveld Dividend Fund', 0.106, 0.167, 0.165, 0.113, 0.123),
    ('Marula Enhanced Income Fund', 0.069, 0.090, 0.088, 0.091, 0.088),
    ('Mopani Cautious Fund', 0.077, 0.082, 0.088, 0.079, 0.085),
    ('Namaqua Global Equity Fund', 0.045, 0.056, 0.066, 0.134, 0.097),
    ('Protea Inflation Plus Fund', 0.062, 0.098, 0.157, 0.086, 0.113),
    ('Sardine Run Opportunity Fund', 0.125, 0.174, 0.151, 0.140, 0.104),
    ('Springbok Top Companies Fund', 0.097, 0.093, 0.158, 0.147, 0.098),
    ('Umzimvubu Financial Fund', 0.047, 0.074, 0.085, 0.114, 0.119),
    ('Wild Coast Prudential Fund', 0.065, 0.039, 0.106, 0.106, 0.118),
    ('Yellowwood Offshore Feeder Fund', 0.210, 0.144, 0.117, 0.123, 0.124),
    ('Elandsdal Gilt Fund', 0.070, 0.097, 0.091, 0.090, 0.089);

-- Inflation over the same periods.
CREATE TABLE [UTH] (
    [Inf 1yr] DOUBLE, [Inf 2yr] DOUBLE, [Inf 3yr] DOUBLE, [Inf 5yr] DOUBLE, [Inf 7yr] DOUBLE
);
INSERT INTO [UTH] VALUES (0.034, 0.039, 0.045, 0.051, 0.049);
