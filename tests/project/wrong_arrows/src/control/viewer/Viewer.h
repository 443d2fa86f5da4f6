#include <QtWidgets/QWidget>
