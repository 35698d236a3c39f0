-- Print.mdb: the data that a screen passes to its report. A screen replaces the rows of its tables and then runs the
-- report definition, which reads them by these names. Only HeadFoot is needed after the report has run.
-- Tables here have no placeholder column. Dates are texts: dd/mm/yyyy, or a blank for no date.

-- -------------------------------------------------------------------------------------- the reports of calculators

-- Nominal and effective interest: rand, months, percent a year.
CREATE TABLE [NomEffect] (
    [Amount] DOUBLE, [Period] DOUBLE, [NomRate] DOUBLE, [EffRate] DOUBLE, [IntEarned] DOUBLE, [ActualIntText3] TEXT
);

-- The amortisation that any report may include, a row for each year or month. Loans and debts keep here the capital
-- payment (Capital), the interest payment (Interest) and the balance after it (Required); needs analyses the balance,
-- the interest, the amount needed and the income available. Rand.
CREATE TABLE [Amort] (
    [Year] DOUBLE, [Capital] DOUBLE, [Interest] DOUBLE, [Required] DOUBLE, [Available] DOUBLE
);

-- A level-payment loan. Num1 principal, rand; Num2 period, months; Num3 interest, percent a year; Num4 repayment,
-- rand a month. The texts are the sentences on financial charges.
CREATE TABLE [Loans] (
    [Heading] VARCHAR(255), [Num1] DOUBLE, [Num2] DOUBLE, [Num3] DOUBLE, [Num4] DOUBLE, [FinText1] TEXT,
    [FinText1A] TEXT, [FinNum1] DOUBLE, [FinText2] TEXT, [FinNum2] DOUBLE, [YearMon] VARCHAR(255)
);

-- An investment abroad beside a local one: rand, years, percent a year; OF for the foreign, L for the local side.
CREATE TABLE [OffShore] (
    [InvAmount] DOUBLE, [OSPeriod] DOUBLE, [OFInvRate] DOUBLE, [LInvRate] DOUBLE, [OFTaxRate] DOUBLE,
    [LTaxRate] DOUBLE, [LCurrChange] DOUBLE, [OSMatVal] DOUBLE, [LMatVal] DOUBLE, [OSRealMatVal] DOUBLE,
    [LRealMatVal] DOUBLE
);

-- Income drawn from shares: the five cost settings (percent, InitAdminFee rand), the inputs, and seven years of
-- report figures, rand.
CREATE TABLE [IncFromShares] (
    [InitCom] DOUBLE, [InitAdminFee] DOUBLE, [AnnDivBonus] DOUBLE, [AnnManFee] DOUBLE, [TrailComm] DOUBLE,
    [ComStatement_1] TEXT, [ComStatement_2] TEXT, [ComStatement_3] TEXT, [InvestAmount] DOUBLE, [ISGrowthRate] DOUBLE,
    [InitPercRequire] DOUBLE, [AnnIncEsca] DOUBLE, [EffTaxRate] DOUBLE, [AnnMonIncShare] VARCHAR(255),
    [MonRep1] DOUBLE, [IntPaid1] DOUBLE, [Total1] DOUBLE, [IncDrawn1] DOUBLE, [MonRep2] DOUBLE, [IntPaid2] DOUBLE,
    [Total2] DOUBLE, [IncDrawn2] DOUBLE, [MonRep3] DOUBLE, [IntPaid3] DOUBLE, [Total3] DOUBLE, [IncDrawn3] DOUBLE,
    [MonRep4] DOUBLE, [IntPaid4] DOUBLE, [Total4] DOUBLE, [IncDrawn4] DOUBLE, [MonRep5] DOUBLE, [IntPaid5] DOUBLE,
    [Total5] DOUBLE, [IncDrawn5] DOUBLE, [MonRep6] DOUBLE, [IntPaid6] DOUBLE, [Total6] DOUBLE, [IncDrawn6] DOUBLE,
    [MonRep7] DOUBLE, [IntPaid7] DOUBLE, [Total7] DOUBLE, [IncDrawn7] DOUBLE
);

-- A cost today and after inflation: rand, years, percent a year.
CREATE TABLE [Inflation] (
    [PresCost] DOUBLE, [Period] DOUBLE, [InflaRate] DOUBLE, [Ans1] DOUBLE, [ANS2] DOUBLE
);

-- A home loan and the same with a larger repayment (X): rand, months, percent a year.
CREATE TABLE [BondBust] (
    [PAmt] DOUBLE, [Period] DOUBLE, [IntRate] DOUBLE, [MonRep] DOUBLE, [TotIntPaid] DOUBLE, [TotRep] DOUBLE,
    [XtraPay] DOUBLE, [Xper] DOUBLE, [XMonRep] DOUBLE, [XTotIntPaid] DOUBLE, [XTotRep] DOUBLE, [XTotSavings] DOUBLE
);

-- The client whose itemised lists are printed.
CREATE TABLE [ItemisePrintName] (
    [Name] VARCHAR(255)
);
INSERT INTO [ItemisePrintName] DEFAULT VALUES;

-- Lines of itemised lists. All are texts, since some lines are headings. The line of the column heads holds the units,
-- the last line of a list its total with a caption.
CREATE TABLE [ItemisePrint] (
    [NewGrid] VARCHAR(255), [IncomeSource] VARCHAR(255), [Amount] VARCHAR(255), [Escalation] VARCHAR(255),
    [FromAge] VARCHAR(255), [ToAge] VARCHAR(255), [AmountUnit] VARCHAR(255), [EscalationUnit] VARCHAR(255),
    [TotalText] VARCHAR(255), [Total] VARCHAR(255)
);

-- Needs analysis for retirement: rand a month for incomes, rand, years, percent a year. The Prem fields are empty
-- unless the premium is shown, the Notes fields unless notes are included.
CREATE TABLE [NARA] (
    [Name] VARCHAR(255), [IDNumber] VARCHAR(255), [IncomeFV] DOUBLE, [IncomeRA] DOUBLE, [IncomeShortText] TEXT,
    [IncomeShort] DOUBLE, [PDV] DOUBLE, [CurrentAge] DOUBLE, [AgeRetiment] DOUBLE, [Inflation] DOUBLE,
    [YearsToRet] DOUBLE, [CoverYears] DOUBLE, [BankInvestRate] DOUBLE, [BirthDate] VARCHAR(255), [ANSLAss1] DOUBLE,
    [ANSLAss2] DOUBLE, [ANSLAss3] DOUBLE, [ANSLAss4] DOUBLE, [ANSLAss5] DOUBLE, [ANSLLib1] DOUBLE, [ANSLLib2] DOUBLE,
    [ANSLLib3] DOUBLE, [ANSLLib4] DOUBLE, [ANSLLib5] DOUBLE, [TotLib] DOUBLE, [TotAss] DOUBLE, [ShoRTFall] TEXT,
    [BottLine1] TEXT, [BottLine2] TEXT, [Limitedto50] TEXT, [PremHeading] VARCHAR(255), [PremGRText] VARCHAR(255),
    [PremGR] DOUBLE, [PremPEscText] VARCHAR(255), [PremPEsc] DOUBLE, [ALTEMVText] VARCHAR(255), [ALTEMV] DOUBLE,
    [PremPeriodText] VARCHAR(255), [PremPeriod] DOUBLE, [PremAnsText] VARCHAR(255), [PremAns] DOUBLE,
    [PremColonText] VARCHAR(255), [PremPAText] VARCHAR(255), [PremYears] VARCHAR(255), [NotesHeading] VARCHAR(255),
    [NotesColon] VARCHAR(255), [Notes] TEXT
);

-- Needs analysis at death or disability, which share this table: rand, years, percent a year.
CREATE TABLE [NADeath] (
    [Name] VARCHAR(255), [Income] DOUBLE, [IDNumber] VARCHAR(255), [Inflation] DOUBLE, [InvestRate] DOUBLE,
    [Period] DOUBLE, [IncomeFV] DOUBLE, [IncomeRA] DOUBLE, [IncomeShortText] TEXT, [IncomeShort] DOUBLE,
    [BirthDate] VARCHAR(255), [ANSAss1] DOUBLE, [ANSAss2] DOUBLE, [ANSAss4] DOUBLE, [ANSAss5] DOUBLE,
    [ANSAss6] DOUBLE, [ANSLib1] DOUBLE, [ANSLib2] DOUBLE, [ANSLib3] DOUBLE, [ANSLib4] DOUBLE, [ANSLib5] DOUBLE,
    [TotLib] DOUBLE, [TotAss] DOUBLE, [ShoRTFall] TEXT, [BottLine1] TEXT, [BottLine2] TEXT,
    [NotesHeading] VARCHAR(255), [NotesColon] VARCHAR(255), [Notes] TEXT
);

-- Needs analysis for education: rand, years, percent a year.
CREATE TABLE [NAED] (
    [Name] VARCHAR(255), [FundsPD] DOUBLE, [BirthDate] VARCHAR(255), [Inflation] DOUBLE, [YearsToEdu] DOUBLE,
    [FundsFV] DOUBLE, [FundsForYears] DOUBLE, [BankRate] DOUBLE, [FundsReq] TEXT, [PremHeading] VARCHAR(255),
    [PremGRText] VARCHAR(255), [PremGR] DOUBLE, [PremPEscText] VARCHAR(255), [PremPEsc] DOUBLE,
    [ALTEMVText] VARCHAR(255), [ALTEMV] DOUBLE, [PremPeriodText] VARCHAR(255), [PremPeriod] DOUBLE,
    [PremAnsText] VARCHAR(255), [PremAns] DOUBLE, [PremColonText] VARCHAR(255), [PremPAText] VARCHAR(255),
    [PremYears] VARCHAR(255)
);

-- Life of capital: how long a sum lasts. Rand, years, percent a year.
CREATE TABLE [LOcap] (
    [LUMPSUM] DOUBLE, [ANNpayment] DOUBLE, [regularpayment] DOUBLE, [term] DOUBLE, [growthrate] DOUBLE, [LOA] TEXT
);

-- A list of clients by review date or birthday. NewGrid is the running number.
CREATE TABLE [AllDetails] (
    [NewGrid] DOUBLE, [Client Name] VARCHAR(255), [BirthDate] VARCHAR(255), [IDNumber] VARCHAR(255),
    [ReviewDate] VARCHAR(255)
);

-- Real rate of return of an investment: rand, months, percent a year; Pay and inc rows are four further payments and
-- incomes, TotPremPaid1 their profit. RateNote says that no rate was found.
CREATE TABLE [RRR] (
    [SingPremLump] DOUBLE, [MonPrem] DOUBLE, [Period] DOUBLE, [AnnEsc] DOUBLE, [MatVal] DOUBLE, [TotPremPaid] DOUBLE,
    [RRR] DOUBLE, [RRRNEWIntLumpInv] DOUBLE, [RRRNEWPeriod] DOUBLE, [RRRNEWMaturityVal] DOUBLE, [RegMpay1] DOUBLE,
    [RegMpay2] DOUBLE, [RegMpay3] DOUBLE, [RegMpay4] DOUBLE, [PayEsc1] DOUBLE, [PayEsc2] DOUBLE, [PayEsc3] DOUBLE,
    [PayEsc4] DOUBLE, [RegMinc1] DOUBLE, [RegMinc2] DOUBLE, [RegMinc3] DOUBLE, [RegMinc4] DOUBLE, [IncEsc1] DOUBLE,
    [IncEsc2] DOUBLE, [IncEsc3] DOUBLE, [IncEsc4] DOUBLE, [RegMpayDet1] VARCHAR(255), [RegMpayDet2] VARCHAR(255),
    [RegMpayDet3] VARCHAR(255), [RegMpayDet4] VARCHAR(255), [RegMincDet1] VARCHAR(255), [RegMincDet2] VARCHAR(255),
    [RegMincDet3] VARCHAR(255), [RegMincDet4] VARCHAR(255), [TotInvMon] DOUBLE, [TotMonIncDrawn] DOUBLE,
    [TotPremPaid1] DOUBLE, [RateNote] TEXT
);

-- A quotation on an investment: rand, months, percent a year, up to eight sentences on costs. LOA says how long the
-- capital CAPI pays the monthly income MINC at the interest GRTE, tax TXRTE and escalation EXCLife; empty if not asked.
CREATE TABLE [InvestmentPro] (
    [LUMPSUM] DOUBLE, [ANNpayment] DOUBLE, [regularpayment] DOUBLE, [paymentescalation] DOUBLE, [term] DOUBLE,
    [growthrate] DOUBLE, [ANS1] DOUBLE, [ComStatement_1] TEXT, [ComStatement_2] TEXT, [ComStatement_3] TEXT,
    [ComStatement_4] TEXT, [ComStatement_5] TEXT, [ComStatement_6] TEXT, [ComStatement_7] TEXT, [ComStatement_8] TEXT,
    [ANS2] DOUBLE, [ANS3] DOUBLE, [ANS4] DOUBLE, [LOA] TEXT, [TAXIG] TEXT, [CAPI] DOUBLE, [MINC] DOUBLE,
    [GRTE] DOUBLE, [TXRTE] DOUBLE, [EXCLife] DOUBLE
);

-- Quick tax of one person for one year: rand, rates in percent. YR9798 is a sentence, TaxYear the year in it.
CREATE TABLE [kwiktax] (
    [AGE] DOUBLE, [TAXINCOME] DOUBLE, [TAXTOPAY] DOUBLE, [MARGRATE] DOUBLE, [PORTION] DOUBLE, [TOTTAX] DOUBLE,
    [REBATE] DOUBLE, [TAXCOM4] DOUBLE, [AVRATE] DOUBLE, [AVRATEAFT] DOUBLE, [YR9798] VARCHAR(255), [TAXCOM4/2] DOUBLE,
    [TaxYear] VARCHAR(255)
);
INSERT INTO [kwiktax] DEFAULT VALUES;

-- Income from an annuity beside a fixed deposit: rand a month after tax, rates in percent.
CREATE TABLE [InvComp] (
    [Name] VARCHAR(255), [Age] DOUBLE, [CTaxFreeI] DOUBLE, [CTaxInc] DOUBLE, [AnnAmount] DOUBLE,
    [AnnDet] VARCHAR(255), [MonTFAnn] DOUBLE, [MonTAnn] DOUBLE, [TotMon] DOUBLE, [LessMonAnn] DOUBLE,
    [MonAfterAnn] DOUBLE, [FDAmount] DOUBLE, [FXInt] DOUBLE, [FXDet] VARCHAR(255), [FXMonInc] DOUBLE,
    [FXLessTax] DOUBLE, [FXMonAftTax] DOUBLE, [RATE] DOUBLE, [AgeAt] VARCHAR(255), [TaxTablesUsed] TEXT
);

-- Up to five debts made into one: rand, percent a year. ANS3, the saving, is empty when there is none.
CREATE TABLE [DebtCon] (
    [Loan1Amt] DOUBLE, [Loan2Amt] DOUBLE, [Loan3Amt] DOUBLE, [Loan4Amt] DOUBLE, [Loan5Amt] DOUBLE, [Loan1Int] DOUBLE,
    [Loan2Int] DOUBLE, [Loan3Int] DOUBLE, [Loan4Int] DOUBLE, [Loan5Int] DOUBLE, [LoanAmtTot] VARCHAR(255),
    [ANS1] DOUBLE, [ANS2] DOUBLE, [ANS3Text1] TEXT, [ANS3Text2] TEXT, [ANS3] DOUBLE, [YearMon] VARCHAR(255)
);

-- A home loan over six terms: rand.
CREATE TABLE [BondComp] (
    [PAmt] DOUBLE, [IntRate] DOUBLE, [MonRep1] DOUBLE, [IntPaid1] DOUBLE, [Total1] DOUBLE, [MonRep2] DOUBLE,
    [IntPaid2] DOUBLE, [Total2] DOUBLE, [MonRep3] DOUBLE, [IntPaid3] DOUBLE, [Total3] DOUBLE, [MonRep4] DOUBLE,
    [IntPaid4] DOUBLE, [Total4] DOUBLE, [MonRep5] DOUBLE, [IntPaid5] DOUBLE, [Total5] DOUBLE, [MonRep6] DOUBLE,
    [IntPaid6] DOUBLE, [Total6] DOUBLE
);

-- The heading of the policies and investments reports: totals in rand. FilledPolicies counts the records that are not
-- empty, LumpSumsDue those with a lump sum at some age, NoPolicies is a sentence if all are empty; WorthTotal is the
-- sum of the column WorthAtRetirement as it is printed.
CREATE TABLE [PolsInvests] (
    [Name] VARCHAR(255), [BirthDate] VARCHAR(255), [IDNumber] VARCHAR(255), [LifeCoverTotal] DOUBLE,
    [ContributionTotal] DOUBLE, [DisabilityTotal] DOUBLE, [DreadTotal] DOUBLE, [RetirementTotal] DOUBLE,
    [CashValueTotal] DOUBLE, [IncomeProTotal] DOUBLE, [MONLifeCoverTotal] DOUBLE, [MONDisabilityTotal] DOUBLE,
    [MONDreadTotal] DOUBLE, [MONIncomeProTotal] DOUBLE, [MONIncomeRBTotal] DOUBLE, [CurrentCPI] DOUBLE,
    [DBenSpouse] DOUBLE, [DBenSpousePerc] DOUBLE, [DBenEstate] DOUBLE, [DBenCharity] DOUBLE, [DBenOther] DOUBLE,
    [PolIncAddNote] VARCHAR(255), [FilledPolicies] DOUBLE, [NoPolicies] VARCHAR(255),
    [LumpSumsDue] DOUBLE, [WorthTotal] DOUBLE, [CurrentValueTotal] DOUBLE, [DBenTotal] DOUBLE
);

-- One row a policy or investment: rand, ages in years, escalations in percent. PremInvAmtAnnualCPI is always 0.
-- IsFilled is 0 for an empty record; WorthAtRetirement, rand, is its worth at retirement.
CREATE TABLE [PolsInvestsAmorts] (
    [PolNum] DOUBLE, [PolInvType] VARCHAR(255), [UnderInst] VARCHAR(255), [PolRefNum] VARCHAR(255),
    [PolOwner] VARCHAR(255), [InceptionDate] VARCHAR(255), [WoP] DOUBLE, [PaidUp] DOUBLE, [PremInvAmtMonthly] DOUBLE,
    [PremInvAmtMonthlyCPI] DOUBLE, [PremInvAmtAnnual] DOUBLE, [PremInvAmtSingle] DOUBLE, [DeathBen] DOUBLE,
    [DeathBenSurrVal] DOUBLE, [DeathBenLoanAgainst] DOUBLE, [DeathBenMonthly] DOUBLE, [DeathBenMonEsc] DOUBLE,
    [DeathBenYears] DOUBLE, [DeathBenLifeAssured] VARCHAR(255), [DeathBenPerson] VARCHAR(255),
    [DeathBenOther] VARCHAR(255), [DeathBenAmtCeded] DOUBLE, [DeathBenCededTo] VARCHAR(255), [DeathBenCashVal] DOUBLE,
    [DeathBenCashValAge] DOUBLE, [DeathBenUseCashAtRet] DOUBLE, [DeathBenCashValEscFor] DOUBLE,
    [DisabilLumpSum] DOUBLE, [DisabilMonthly] DOUBLE, [DisabilMonEscAt] DOUBLE, [TraumlLumpSum] DOUBLE,
    [TraumMonthly] DOUBLE, [TraumMonEscAt] DOUBLE, [IncProYears] DOUBLE, [IncProMonthly] DOUBLE,
    [IncProMonEscAt] DOUBLE, [RBEMV] DOUBLE, [RBEMVAge] DOUBLE, [RBEMVEscFor] DOUBLE, [RBPenLump] DOUBLE,
    [RBPenLumpAge] DOUBLE, [RBPenLumpEscFor] DOUBLE, [RBProvFLump] DOUBLE, [RBProvFLumpAge] DOUBLE,
    [RBProvFLumpEscFor] DOUBLE, [RBMonAvaible] DOUBLE, [RBMonAvaibleEscFor] DOUBLE, [EndowEMV] DOUBLE,
    [EndowEMVAge] DOUBLE, [UseEndowEMVAtRet] DOUBLE, [EndowEMVEscFwd] DOUBLE, [InvBensCurVal] DOUBLE,
    [InvBensCurValLoanAgainst] DOUBLE, [InvBensTakeAtDisa] DOUBLE, [InvBensTakeFinValAtRet] DOUBLE,
    [InvBensMatValLS] DOUBLE, [InvBensMatValLSAtAge] DOUBLE, [InvBensMatValLSEscAt] DOUBLE,
    [PolIncAddNote] VARCHAR(255), [PolIncNote] TEXT, [PremInvAmtAnnualCPI] DOUBLE,
    [PremInvAmtMonthlyAnnEsc] DOUBLE, [IsFilled] DOUBLE, [WorthAtRetirement] DOUBLE
);

-- Tax saved by retirement funding: rand. TaxIncCur is the remuneration, TaxIncRA the taxable income,
-- PortInvestPaySarsPA the capital gains, RaCont the highest contribution, TaxSavingPM the one proposed, NewRA the tax
-- saved, TaxComitCur and TaxComitRA the parts that SARS and the taxpayer pay. BelowThreshold is 1 if no tax is due.
CREATE TABLE [RATaxAdvantage] (
    [Heading] VARCHAR(255), [TaxPayerAge] DOUBLE, [TaxIncCur] DOUBLE, [TaxIncRA] DOUBLE, [PortInvestPaySarsPA] DOUBLE,
    [RaCont] DOUBLE, [TaxSavingPM] DOUBLE, [NewRA] DOUBLE, [TaxComitCur] DOUBLE, [TaxComitRA] DOUBLE, [PerAns] TEXT,
    [BelowThreshold] DOUBLE
);
INSERT INTO [RATaxAdvantage] DEFAULT VALUES;

-- Interest on a daily balance: rand, percent a year, dates as dd/mm/yyyy.
CREATE TABLE [DailyBal] (
    [CapAmount] DOUBLE, [StartDate] VARCHAR(255), [EndDate] VARCHAR(255), [IntRate] DOUBLE, [ANS1] DOUBLE,
    [ANS2] DOUBLE
);

-- Lump sums from retirement funds and severance by tax year: rand. One of the FstLumpTaken fields holds "T". TaxDue is
-- the tax on Total, all of them, less the tax on Prior, those taken before.
CREATE TABLE [IRP5IncDed] (
    [RetireLumpSumBefore] DOUBLE, [RRExGrtCTY02042021] DOUBLE, [RetrenchmentLumps2021] DOUBLE,
    [RetireDeathAfter2021] DOUBLE, [RRExGrtCTY02042022] DOUBLE, [RetrenchmentLumps2022] DOUBLE,
    [RetireDeathAfter2022] DOUBLE, [RRExGrtCTY02042023] DOUBLE, [RetrenchmentLumps2023] DOUBLE,
    [RetireDeathAfter2023] DOUBLE, [RRExGrtCTY02042024] DOUBLE, [RetrenchmentLumps2024] DOUBLE,
    [RetireDeathAfter2024] DOUBLE, [RRExGrtCTY02042025] DOUBLE, [RetrenchmentLumps2025] DOUBLE,
    [RetireDeathAfter2025] DOUBLE, [RRExGrtCTY02042026] DOUBLE, [RetrenchmentLumps2026] DOUBLE,
    [RetireDeathAfter2026] DOUBLE, [RRExGrtCTY02042027] DOUBLE, [RetrenchmentLumps2027] DOUBLE,
    [RetireDeathAfter2027] DOUBLE, [FstLumpTaken1] VARCHAR(255), [FstLumpTaken2] VARCHAR(255),
    [FstLumpTaken3] VARCHAR(255), [TaxDue] DOUBLE, [Total] DOUBLE, [TaxOnTotal] DOUBLE, [Prior] DOUBLE,
    [TaxOnPrior] DOUBLE
);

-- Gains and losses from trusts and other sources. All are texts, since the first line holds the title (NewGrid) and the
-- column heads. The last line holds the total with a caption.
CREATE TABLE [CGTTrustOtherItemise] (
    [CGTNum] DOUBLE, [Source] VARCHAR(255), [COP Split] VARCHAR(255), [Base Cost] VARCHAR(255),
    [Proceeds] VARCHAR(255), [Amount] VARCHAR(255), [ExclCOPSplit] VARCHAR(255), [NewGrid] VARCHAR(255),
    [TotalText] VARCHAR(255), [Total] VARCHAR(255)
);

-- A travel claim: kilometres and rand; fce, fc, mc and tatc cents a kilometre. mta02 is not used, CARNO is 1, and FCDet
-- and MCDet are the labels of fc and mc.
CREATE TABLE [traveldeduction] (
    [TPName] VARCHAR(255), [CARNO] DOUBLE, [mta01] VARCHAR(255), [mta04] DOUBLE, [mta05] DOUBLE, [mta06] DOUBLE,
    [mta07] DOUBLE, [tadeduction] DOUBLE, [MTD] DOUBLE, [MBD] DOUBLE, [mpd] DOUBLE, [mta02] DOUBLE, [mta03] DOUBLE,
    [mta14] DOUBLE, [cv] DOUBLE, [fce] DOUBLE, [fc] DOUBLE, [mc] DOUBLE, [tatc] DOUBLE, [FCDet] VARCHAR(255),
    [MCDet] VARCHAR(255), [DateStart] VARCHAR(255), [DateEnd] VARCHAR(255), [mta08] DOUBLE, [mta09] DOUBLE,
    [mta10] DOUBLE, [mta11] DOUBLE, [mta12] DOUBLE, [mta13] DOUBLE, [totcost] DOUBLE, [pu] DOUBLE
);
INSERT INTO [traveldeduction] DEFAULT VALUES;

-- Draw-down annuity: the seven cost settings, two phases (0 and 1), the years reported, and how long the income is paid
-- as a sentence. Rand, percent.
CREATE TABLE [LivAnn] (
    [BrokerCom] DOUBLE, [SetupCosts] DOUBLE, [AnnPortFee] DOUBLE, [AnnualDiv] DOUBLE, [TrailComm] DOUBLE,
    [MaxIncAllowed] DOUBLE, [MinIncAllowed] DOUBLE, [Name] VARCHAR(255), [LSAmt] DOUBLE, [GRLA] DOUBLE, [MidP] DOUBLE,
    [ESC] DOUBLE, [Ans] DOUBLE, [FromYear0] DOUBLE, [FromYear1] DOUBLE, [ToYear0] DOUBLE, [ToYear1] DOUBLE,
    [LAInitDraw0] DOUBLE, [LAInitDraw1] DOUBLE, [Esc0] DOUBLE, [Esc1] DOUBLE, [GRLA0] DOUBLE, [GRLA1] DOUBLE,
    [T11] DOUBLE, [T21] DOUBLE, [T12] DOUBLE, [T22] DOUBLE, [T13] DOUBLE, [T23] DOUBLE, [T14] DOUBLE, [T24] DOUBLE,
    [TY20] DOUBLE, [TY21] DOUBLE, [Sentence] VARCHAR(255)
);

-- Settings of monthly tax, copied from Default.Mdb when a month is printed: percent, UIFLimit rand a month.
CREATE TABLE [PAYESetup] (
    [EmployeeUIF] DOUBLE, [EmployerUIF] DOUBLE, [SkillLevy] DOUBLE, [UIFLimit] DOUBLE, [TAIncRate8020] DOUBLE
);
INSERT INTO [PAYESetup] DEFAULT VALUES;

-- Estate duty and executor's fees: the five settings copied from Default.Mdb, then rand.
CREATE TABLE [EstateDutyEst] (
    [EstateDutyRebate] DOUBLE, [RateofTax] DOUBLE, [ExecFeesRate] DOUBLE, [RateofTax2] DOUBLE, [SndBracket] DOUBLE,
    [Name] VARCHAR(255), [PropEstate] DOUBLE, [PolInvEstate] DOUBLE, [OtherEstate] DOUBLE, [TotalEstate] DOUBLE,
    [LessAccEstate] DOUBLE, [DutEstate] DOUBLE, [EstateDuty] DOUBLE, [PropExecutor] DOUBLE, [PolInvExecutor] DOUBLE,
    [OtherExecutor] DOUBLE, [TotalExecutor] DOUBLE, [LessAccExecutor] DOUBLE, [DutExecutor] DOUBLE,
    [ExecutorsFees] DOUBLE
);
INSERT INTO [EstateDutyEst] DEFAULT VALUES;

-- ------------------------------------------------------------------------- the practice, the client and other lists

-- Header and footer lines of every report, kept in step with the client database.
CREATE TABLE [HeadFoot] (
    [HEADERV0] VARCHAR(80), [HEADERV1] VARCHAR(80), [HEADERV2] VARCHAR(80), [HEADERV3] VARCHAR(80),
    [footv0] VARCHAR(80), [footv1] VARCHAR(80), [footv2] VARCHAR(80), [footv3] VARCHAR(80)
);
INSERT INTO [HeadFoot] VALUES ('', '', '', '', 'This report was prepared in accordance with ',
    'information supplied by the undersigned client.', '', '');

-- The client's personal details. Marital status and smoker are captions; Comments is empty unless notes are included.
CREATE TABLE [PersDetails] (
    [Name] VARCHAR(80), [BirthDate] VARCHAR(10), [CTitle] VARCHAR(10), [CFName] VARCHAR(50), [CInit] VARCHAR(10),
    [CLName] VARCHAR(50), [IDNumber] VARCHAR(40), [PAdd1] VARCHAR(50), [PAdd2] VARCHAR(50), [PAdd3] VARCHAR(50),
    [PAddZip] VARCHAR(10), [ResAdd1] VARCHAR(50), [ResAdd2] VARCHAR(50), [ResAdd3] VARCHAR(50),
    [COccupation] VARCHAR(50), [CEmployer] VARCHAR(50), [CTelWork] VARCHAR(20), [CTelHome] VARCHAR(20),
    [CFaxWork] VARCHAR(20), [CFaxHome] VARCHAR(20), [CCell] VARCHAR(20), [CEMail] VARCHAR(50),
    [CEducation] VARCHAR(50), [CExecutors] VARCHAR(80), [CBank] VARCHAR(80), [CBranch] VARCHAR(80),
    [CAccNo] VARCHAR(80), [ReviewDate] VARCHAR(10), [NextApp] VARCHAR(10), [CMaritalStat] VARCHAR(255),
    [CSmoker] VARCHAR(255), [Comments] TEXT, [STitle] VARCHAR(10), [SFName] VARCHAR(50), [SInit] VARCHAR(10),
    [SLName] VARCHAR(50), [SDOB] VARCHAR(10), [SOccupation] VARCHAR(50), [SEmployer] VARCHAR(50),
    [SSinNum0] VARCHAR(50), [SEducation] VARCHAR(50), [STelWork] VARCHAR(20), [STelHome] VARCHAR(20),
    [SFaxWork] VARCHAR(20), [SFaxHome] VARCHAR(20), [SCell] VARCHAR(20), [SEMail] VARCHAR(50),
    [SMaritalStat] VARCHAR(255), [SSmoker] VARCHAR(255), [DEP1] VARCHAR(50), [DEP2] VARCHAR(50), [DEP3] VARCHAR(50),
    [DEP4] VARCHAR(50), [DEP5] VARCHAR(50), [DEP6] VARCHAR(50), [DEP7] VARCHAR(50), [DEP8] VARCHAR(50),
    [DEPDOB1] VARCHAR(10), [DEPDOB2] VARCHAR(10), [DEPDOB3] VARCHAR(10), [DEPDOB4] VARCHAR(10), [DEPDOB5] VARCHAR(10),
    [DEPDOB6] VARCHAR(10), [DEPDOB7] VARCHAR(10), [DEPDOB8] VARCHAR(10), [Description] VARCHAR(60)
);
INSERT INTO [PersDetails] DEFAULT VALUES;

-- The client of the printout. Every feed writes it with its own tables, so that no report shows another client's name.
CREATE TABLE [Printout] (
    [Client] VARCHAR(255)
);
INSERT INTO [Printout] DEFAULT VALUES;

-- The client file: its cover, with the day in words; what the adviser wrote, in paragraphs; and a row for each stored
-- result that is not what the record gives today.
CREATE TABLE [ClientFileCover] (
    [Name] VARCHAR(255), [IDNumber] VARCHAR(40), [DateText] VARCHAR(255)
);
CREATE TABLE [ClientFileTexts] (
    [Name] VARCHAR(255), [Basis] TEXT, [Considered] TEXT, [Recommendation] TEXT, [Replacement] TEXT, [Decision] TEXT
);
CREATE TABLE [ClientFileRemarks] (
    [Remark] TEXT
);

-- Heading (Name) and column heads of the list of clients.
CREATE TABLE [AllDetailsHeader] (
    [Name] VARCHAR(255), [NameA] VARCHAR(255), [BirthDate] VARCHAR(255), [IDNumber] VARCHAR(255),
    [ReviewDate] VARCHAR(255)
);
INSERT INTO [AllDetailsHeader] DEFAULT VALUES;

-- Growth of unit trust funds as listed on screen, fractions a year (0.123 is 12.3 %).
CREATE TABLE [UnitHist] (
    [Unit Trust Fund] TEXT, [1 yr] DOUBLE, [2 yr] DOUBLE, [3 yr] DOUBLE, [5 yr] DOUBLE, [7 yr] DOUBLE
);

-- How that list is sorted, and inflation over the same periods as fractions.
CREATE TABLE [UnitHistDet] (
    [SortedBY] VARCHAR(255), [Inf 1yr] DOUBLE, [Inf 2yr] DOUBLE, [Inf 3yr] DOUBLE, [Inf 5yr] DOUBLE, [Inf 7yr] DOUBLE
);
INSERT INTO [UnitHistDet] DEFAULT VALUES;

-- Monthly tax of one employee, each figure with its caption: rand. EmployeeName is empty if none was typed.
CREATE TABLE [IRP5Mon] (
    [TypeAM] VARCHAR(255), [Employee] VARCHAR(255), [Age] VARCHAR(255), [AgeNum] DOUBLE, [Sal] VARCHAR(255),
    [SalNum] DOUBLE, [DirFees] VARCHAR(255), [DirFeesNum] DOUBLE, [TravAll] VARCHAR(255), [TravOne] DOUBLE,
    [TravTwo] DOUBLE, [Bonus] VARCHAR(255), [BonusNum] DOUBLE, [MedExp] VARCHAR(255), [MedExpNum] DOUBLE,
    [PenCont] VARCHAR(255), [PenContNum] DOUBLE, [RACont] VARCHAR(255), [RAContNum] DOUBLE, [SDATE] VARCHAR(255),
    [SDateNum] VARCHAR(255), [EDATE] VARCHAR(255), [EDateNum] VARCHAR(255), [UIFEMPE] VARCHAR(255),
    [UIFEMPENum] DOUBLE, [UIFEMPR] VARCHAR(255), [UIFEMPRNum] DOUBLE, [SDL] VARCHAR(255), [SDLNum] DOUBLE,
    [EOE] VARCHAR(255), [Taxliability] VARCHAR(255), [Taxliabilitynum] DOUBLE, [TaxCredit] VARCHAR(255),
    [Taxcreditnum] DOUBLE, [TaxCreditCons] VARCHAR(255), [TaxcreditnumCons] DOUBLE, [EmpERMedAidCont] VARCHAR(255),
    [EmpERMedAidContnum] DOUBLE, [EmpEEMedAidCont] VARCHAR(255), [EmpEEMedAidContnum] DOUBLE,
    [AnnCalcBens3] VARCHAR(255), [AnnCalcBens3num] DOUBLE, [MedAidBens] VARCHAR(255), [total] VARCHAR(255),
    [TotalNum] DOUBLE, [EmployeeName] VARCHAR(255), [AllowableFund] VARCHAR(255), [AllowableFundNum] DOUBLE
);
INSERT INTO [IRP5Mon] DEFAULT VALUES;

-- One row an asset disposed of, the summary of the year on the first row: rand. Another table than the client
-- database's of this name.
CREATE TABLE [CGTDetails] (
    [CGTAssetNum] DOUBLE, [CGTAsset] VARCHAR(255), [SBFiveDed] TEXT, [Size] VARCHAR(255), [ResOccPerc] VARCHAR(255),
    [AssetDesc] VARCHAR(255), [DateAquired] VARCHAR(255), [DateSale] VARCHAR(255), [OrigPurPrice] DOUBLE,
    [AcquiCost] DOUBLE, [AppVal] DOUBLE, [DeemVal] DOUBLE, [ImproveMade] DOUBLE, [ImproveMadeBefore] DOUBLE,
    [SaleCost] DOUBLE, [SellPrice] DOUBLE, [LocForeign] VARCHAR(255), [CGTCOPMarSplit] VARCHAR(255),
    [DBProfitType] TEXT, [DBDays] VARCHAR(255), [PerShare] DOUBLE, [PerShareAns] DOUBLE, [CapGain] DOUBLE,
    [ExclCOPSplit] VARCHAR(255), [CapGain4250] DOUBLE, [CapGain4251] DOUBLE, [ForeignCapGain4252] DOUBLE,
    [ForeignCapGain4253] DOUBLE, [WTCGTTotal] DOUBLE, [CarryOverCapGain] DOUBLE, [summary] VARCHAR(255),
    [TPCapGain4250] VARCHAR(255), [TLCapGain4251] VARCHAR(255), [TPForeignCapGain4252] VARCHAR(255),
    [TLForeignCapGain4253] VARCHAR(255), [TWTCGTTotal] VARCHAR(255), [TCarryOverCapGain] VARCHAR(255),
    [T4250] VARCHAR(255), [T4251] VARCHAR(255), [T4252] VARCHAR(255), [T4253] VARCHAR(255), [TaxYear] VARCHAR(255),
    [KnownGains] DOUBLE, [TotalGains] DOUBLE, [NotCounted] VARCHAR(255)
);

-- Heading of the gains from trusts and other sources: rand.
CREATE TABLE [CGTTrustOtherDetails] (
    [TaxPayerName] VARCHAR(255), [AdditCapGain] DOUBLE
);
INSERT INTO [CGTTrustOtherDetails] DEFAULT VALUES;
