#include "assessment/assessment.h"

int main() { return assessment::Assessment{}.loans.Heading == "Monthly repayment" ? 0 : 1; }
