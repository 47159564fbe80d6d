# The generator tool and the files it writes: lands with the operator table.
