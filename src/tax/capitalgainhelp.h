#pragma once

namespace tax {

struct HelpText {
    const char *title, *text;
};

/// The topics, by the index of their button.
enum CapitalGainTopic {
    aboutKnownGains,
    aboutTypes,
    aboutPartnerships,
    aboutResidence,
    aboutResidencyPeriod,
    aboutCopSplit,
    aboutSmallBusiness,
    aboutSummary
};

/// The help texts of capital gains, in the order of their buttons. They are shown as they are here: some figures in
/// them are those of earlier years, while the calculation uses the present ones.
inline constexpr HelpText capitalGainTopics[] = {
    {"Capital Gains: Known Gain/Loss",
     "An asset will only qualify for CGT when you dispose of the asset.  If you have a tax certificate "
     "from a Trust or an Investment Fund stating that you earned a certain amount of income of a capital "
     "gain nature then you certainly do not need a fancy calculator to work out the gain.  You can enter "
     "a total right here for known local and/or foreign gains but, if you itemise these amounts, you can "
     "enter far more information.  The itemising grid also allows you to exclude this gain from any split "
     "if the taxpayer is married in CoP and a particular income is not to be split under normal CoP laws."},
    {"Capital Gains: Type of Asset",
     "You can Add as many CGT transactions as you like simply by clicking on the Add button.  You can "
     "tell Marlowbeck that the asset we are disposing of is unlisted or foreign shares, a primary "
     "residence, a small business sale or an Other asset such as a second property.  Marlowbeck will "
     "apply all the relevant laws and exclusions."},
    {"Capital Gains: Partnerships",
     "In the case of a partnership, all partners who have a financial interest in the asset have a share "
     "in the profit and a share in any exclusion amount.  If 5 young guys buy a house together, and live "
     "in it as their primary residence, they each get a percentage share of the profit and a share of the "
     "primary residence exclusion when they sell the house.  Marlowbeck works it all out for you."},
    {"Capital Gains: Primary Residence",
     "The primary residence exclusion in this tax year is R2m.  This exclusion only applies to the first "
     "2Ha of a primary residence.  If you buy a house for R2,000,000 and sell it for R2,600,000 making a "
     "profit/gain of R600,000 on the disposal of a primary residence of 3Ha then the R2m exclusion only "
     "applies to the first 2 Ha.  SARS says you made R200,000 profit per Ha so the exclusion is offset "
     "against the R400,000 profit on the first two Ha.  The R200,000 profit on the last Ha is fully "
     "taxable as a gain and will go towards capital gains tax."},
    {"Foreign Capital Gains: Primary Residence Residency Period",
     "Residency period' only applies to a primary residence.  If you rent out your primary residence for "
     "a period and then sell the property this could affect the amount of the capital gain.  The same "
     "thing could happen if you run a business from home and the business pays you for using space in "
     "your home.  The formula for determining how the 'residency period' percentage affects your "
     "profit/gain is complex and, depending on the profit and the residency period percentage, the "
     "exclusion or the gain/profit could be adjusted."},
    {"Foreign Capital Gains: Exclude from COP Split",
     "You may ask the program to split the gain if the taxpayer is married in CoP.  Note that not all "
     "gains are split if married in CoP.  If this asset you disposed of was a property you inherited from "
     "your uncle who left it to you in his will specifically stating that the asset was yours excluding "
     "any marital or spousal contracts then the profit made is all yours and the gain must be not be "
     "split if you are married in CoP."},
    {"Capital Capital Gains: Small Business Exemption",
     "The first R1.8m of profit on a small business is exempt from CGT provided that you are either over "
     "55 or you were forced to sell the business because of ill health. The exemption is per person and "
     "not per business, the total value of all the taxpayer's businesses must not exceed R10m.  In the "
     "case of a partnership, each partner may be entitled to R1.8m provided that the sale of the business "
     "is finalised in 2 years. Any unused portion of the exempt amount may be carried forward to a "
     "possible future business sale provided that the total value of all sales are less than R10m.  "
     "Marlowbeck allows you to enter how much of the R1.8m exemption you qualify for with this "
     "transaction."},
    {"Capital Capital Gains: Summary",
     "SARS wants you to enter the full profit/gain amount as code 4250/4252 on the ITR12.  SARS, and "
     "Marlowbeck, will apply all CoP splits, exclusion amounts and Inclusion percentages in order to show "
     "what portion of the capital gain amount will be added to the taxpayer’s normal taxable income to be "
     "taxed at the taxpayer’s normal tax rates."},
};

inline constexpr const char* baseCostTitle = "Capital Gains: Value on 01/10/2001";
/// The three ways to find the base cost on 1 October 2001.
inline constexpr const char* baseCostTexts[] = {
    "A) The 'Valuation' method where the base cost is known.  If you bought the asset before 1st October "
    "2001 and had it valued on 1st October 2001 then this valuation amount is the base cost.  If you did "
    "have the asset valued on 01/10/2001 and lodged that value with SARS at the time then you have to "
    "use the valuation method when determining CGT.  You cannot later 'cherry pick' and opt for the TAB "
    "method.  If you bought the asset after 1st October 2001 then the base cost is the purchase price "
    "plus any acquisition costs.",
    "B) If you bought the asset before 1st October 2001 and never had it valued on 1st October 2001 then "
    "the TAB (Time Apportioned Base cost) formula must be used to determine a deemed value, or base "
    "cost, on 1st October 2001.  Marlowbeck uses a complex set of formulas in the 8th Schedule to work "
    "out the deemed value.",
    "C) If you cannot remember when you bought the asset or what you paid for it and you enter no date "
    "of purchase, no purchase price and no valuation amount then 20% of the selling price becomes the "
    "base cost.",
};

} // namespace tax
