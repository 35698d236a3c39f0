-- Default.Mdb: settings of the installation. Every table has exactly one row; the program edits it and never adds one.
-- Rates are in percent unless said otherwise.

-- Costs and returns used in quotations. E endowment, R retirement annuity, UT unit trust. EIAF and RIAF are rand. In
-- each first line: commission on single, regular and monthly premiums, trail commission on the portfolio, commission
-- on escalations, initial fee, management fee, dividend or bonus, and tax on profits (E) or the lump sum portion,
-- allocation and annuity percentages (R). The user changes this row.
CREATE TABLE [MutualFunds] (
    [ESPremCom] DOUBLE, [EAPremCom] DOUBLE, [EMPremCom] DOUBLE, [EAComPortVal] DOUBLE, [EComEscPr] DOUBLE,
    [EIAF] DOUBLE, [EAMFee] DOUBLE, [EADivBo] DOUBLE, [ETaxRate] DOUBLE, [RSPremCom] DOUBLE, [RAPremCom] DOUBLE,
    [RMPremCom] DOUBLE, [RAComPortVal] DOUBLE, [RComEscPr] DOUBLE, [RIAF] DOUBLE, [RAMFee] DOUBLE, [RAADivBo] DOUBLE,
    [LumpSumPort] DOUBLE, [AllocationPer] DOUBLE, [AnnuityPer] DOUBLE, [UTCOM] DOUBLE, [UTDiv] DOUBLE,
    [UTAMFee] DOUBLE, [UTAComPortVal] DOUBLE
);
INSERT INTO [MutualFunds] VALUES (
    2.5, 3, 3, 0.5, 3, 100, 1, 0, 30,
    2.5, 3, 3, 0.5, 3, 100, 1, 0, 33.33, 100, 8,
    3, 3, 1, 0.5
);

-- The original rates, shown beside the user's and never changed.
CREATE TABLE [TallowenDefault] (
    [ESPremCom] DOUBLE, [EAPremCom] DOUBLE, [EMPremCom] DOUBLE, [EAComPortVal] DOUBLE, [EComEscPr] DOUBLE,
    [EIAF] DOUBLE, [EAMFee] DOUBLE, [EADivBo] DOUBLE, [ETaxRate] DOUBLE, [RSPremCom] DOUBLE, [RAPremCom] DOUBLE,
    [RMPremCom] DOUBLE, [RAComPortVal] DOUBLE, [RComEscPr] DOUBLE, [RIAF] DOUBLE, [RAMFee] DOUBLE, [RAADivBo] DOUBLE,
    [LumpSumPort] DOUBLE, [AllocationPer] DOUBLE, [AnnuityPer] DOUBLE, [UTCOM] DOUBLE, [UTDiv] DOUBLE,
    [UTAMFee] DOUBLE, [UTAComPortVal] DOUBLE
);
INSERT INTO [TallowenDefault] VALUES (
    2.5, 3, 3, 0.5, 3, 100, 1, 0, 30,
    2.5, 3, 3, 0.5, 3, 100, 1, 0, 33.33, 100, 8,
    3, 3, 1, 0.5
);

-- GRINC is the step of growth rates on spin buttons, percentage points; RptLanguage the language of reports, "E"
-- English.
CREATE TABLE [Setup] (
    [GRINC] DOUBLE, [RptLanguage] VARCHAR(1)
);
INSERT INTO [Setup] VALUES (0.5, 'E');

-- Costs of shares: initial commission, initial fee (rand), dividend bonus, management fee, trail commission.
CREATE TABLE [IncFromShares] (
    [InitCom] DOUBLE, [InitAdminFee] DOUBLE, [AnnDivBonus] DOUBLE, [AnnManFee] DOUBLE, [TrailComm] DOUBLE
);
INSERT INTO [IncFromShares] VALUES (1, 0, 0, 1, 0.5);

-- Costs of a draw-down annuity: commission, SetupCosts (rand), fee, dividend, trail commission, and the highest and
-- lowest income allowed as a percentage of the portfolio a year.
CREATE TABLE [livann] (
    [BrokerCom] DOUBLE, [SetupCosts] DOUBLE, [AnnPortFee] DOUBLE, [AnnualDiv] DOUBLE, [TrailComm] DOUBLE,
    [MaxIncAllowed] DOUBLE, [MinIncAllowed] DOUBLE
);
INSERT INTO [livann] VALUES (1.5, 500, 0.5, 1, 1, 17.5, 2.5);

-- Monthly tax: UIF of employee and employer, skills levy, the monthly earnings that UIF is limited to (rand), and the
-- part of a travel allowance that is taxed (a fraction: 0.8 or 0.2).
CREATE TABLE [PAYESetup] (
    [EmployeeUIF] DOUBLE, [EmployerUIF] DOUBLE, [SkillLevy] DOUBLE, [UIFLimit] DOUBLE, [TAIncRate8020] DOUBLE
);
INSERT INTO [PAYESetup] VALUES (1, 1, 1, 17712, 0.8);

-- Estate duty: rebate (rand), first rate, executor's fees, second rate, where the second rate begins (rand).
CREATE TABLE [EstateDutyEst] (
    [EstateDutyRebate] DOUBLE, [RateofTax] DOUBLE, [ExecFeesRate] DOUBLE, [RateofTax2] DOUBLE, [SndBracket] DOUBLE
);
INSERT INTO [EstateDutyEst] VALUES (3500000, 20, 3.5, 25, 30000000);
