// What all panels that ask for a file have in common.
#pragma once

class QFileDialog;

/// Gives the toolkit's panel the window's icons, names for the parts that it leaves nameless, and a list without what
/// names say already. The desktop's own panel keeps its looks.
void dressFilePanel(QFileDialog& panel);
