# Install rules: land with the packages.
