// This library has no code of its own: it holds the rendered pictures and sounds.
