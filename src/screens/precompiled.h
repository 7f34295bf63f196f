// What nearly every unit of the screens includes.
#pragma once

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>
