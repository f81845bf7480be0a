#pragma once
// The window of the section class dialog (frmClaseAcero): the family and the steel on one row,
// the steel's name beside them, the table below in its fixed-width view, and the buttons.

#include <QDialog>

#include "controls/Vista.h"

namespace vardena {

class FrmClaseAcero;

class DialogoClaseAcero : public QDialog {
public:
    explicit DialogoClaseAcero(FrmClaseAcero& form, QWidget* parent = nullptr);

private:
    VistaForm vista_;
};

}  // namespace vardena
