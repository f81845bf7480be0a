#pragma once
// The two unit systems. Everything in memory and on disk is in the technical system; the
// international system exists on the panels and in the reports only. A load field TxtQ(i)
// declares its own factor to S.I. in the hidden label LbQSI(i).

namespace vardena {

class Form;

// Shows lbST or lbSI by the system and, in S.I., rescales what the form holds as design
// defaults. Only ever goes from technical to S.I.
void CambiaUnidades(Form& form, int unidades);
// TxtQ(i) in internal units.
double LeeQ(Form& form, int i);
// Writes `value` (internal units) into TxtQ(i); decimals 0, 1, 2, or any other value for the
// general format.
void PoneQ(Form& form, int i, double value, double factor = 1, int decimals = 100);

}  // namespace vardena
