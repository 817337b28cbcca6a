// What all panels that ask for a file have in common.
#pragma once

class QFileDialog;

/// Names the parts that the toolkit leaves nameless, and spares the user the long list of patterns. The desktop's own
/// panel keeps its looks.
void dressFilePanel(QFileDialog& panel);
