"""The drawings, one module per group of folders."""

from . import (controls, corrections, cursors, dialogs, distortion, messages, panels, shadows, tiltshift, titlebar,
               toolbar, toplevel)

MODULES = (toplevel, controls, titlebar, messages, cursors, toolbar, corrections, distortion, tiltshift, panels,
           dialogs, shadows)
