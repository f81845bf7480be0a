#pragma once
// The window of the masonry properties dialog (frmFabrica): the data of the masonry beside the
// properties worked out from them, each with its unit, and "SALIR", which saves and closes.

#include <QDialog>

#include "controls/Vista.h"

namespace vardena {

class FrmFabrica;

class DialogoFabrica : public QDialog {
public:
    explicit DialogoFabrica(FrmFabrica& form, QWidget* parent = nullptr);

private:
    VistaForm vista_;
};

}  // namespace vardena
