#pragma once
// The window of the map dialogs of the actions form (frmECGn, frmECV, frmNCSE02): the map or
// the list of lines beside the values picked, and "Aceptar".

#include <QDialog>
#include <vector>

#include "controls/Vista.h"

namespace vardena {

class DialogoAcciones;
class TextoLineas;

class DialogoMapas : public QDialog {
public:
    explicit DialogoMapas(DialogoAcciones& form, QWidget* parent = nullptr);

private:
    void Actualiza();

    DialogoAcciones& form_;
    VistaForm vista_;
    std::vector<TextoLineas*> textos_;
};

}  // namespace vardena
