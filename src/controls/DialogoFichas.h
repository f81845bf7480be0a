#pragma once
// The window of the slab catalogue editor (frmForjUnid2): the kind and the systems of its
// catalogue in a list on the left; the chosen system's name and geometry and the table of its
// section rows on the right; save, cancel and choose at the foot.

#include <QDialog>

#include "controls/Vista.h"

namespace vardena {

class FrmForjUnid2;

class DialogoFichas : public QDialog {
public:
    explicit DialogoFichas(FrmForjUnid2& form, QWidget* parent = nullptr);

private:
    FrmForjUnid2& form_;
    VistaForm vista_;
};

}  // namespace vardena
