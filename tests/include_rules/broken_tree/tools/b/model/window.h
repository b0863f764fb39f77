#pragma once
#include <QWidget>
#include <QString>
